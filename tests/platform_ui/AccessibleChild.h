// A row of a painted window as assistive technology sees it, by its name. A row that is not there
// fails the test and does nothing.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>

#include "platform/ui/PaintedWindow.h"

namespace quill::test {

class AccessibleChild {
 public:
  AccessibleChild(const CPaintedWindow& window, const char16_t* name) {
    auto* const parent =
        QAccessible::queryAccessibleInterface(const_cast<CPaintedWindow*>(&window));
    for (int i = 0; i < parent->childCount(); ++i)
      if (parent->child(i)->text(QAccessible::Name) == QString::fromUtf16(name))
        m_child = parent->child(i);
    EXPECT_NE(m_child, nullptr) << QString::fromUtf16(name).toStdString();
  }

  QAccessible::Role Role() const { return m_child ? m_child->role() : QAccessible::NoRole; }
  QAccessible::State State() const { return m_child ? m_child->state() : QAccessible::State(); }
  void Press() { Do(QAccessibleActionInterface::pressAction()); }
  void Toggle() { Do(QAccessibleActionInterface::toggleAction()); }
  void ShowMenu() { Do(QAccessibleActionInterface::showMenuAction()); }

 private:
  void Do(const QString& action) {
    if (m_child) m_child->actionInterface()->doAction(action);
    QCoreApplication::processEvents();  // it is carried out after the answer
  }

  QAccessibleInterface* m_child = nullptr;
};

}  // namespace quill::test
