#include "platform/ui/ControlAccessibility.h"

#include <QAccessibleWidget>

#include "platform/ui/DatePicker.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/PictureLabel.h"

namespace quill {

namespace {

// On this platform the toolkit's own gives the choice as the name.
class AccessibleDropDown : public QAccessibleWidget {
 public:
  explicit AccessibleDropDown(CDropDown& list)
      : QAccessibleWidget(&list, QAccessible::ComboBox), m_list(list) {}

  QString text(QAccessible::Text text) const override {
    return text == QAccessible::Value ? m_list.currentText() : QAccessibleWidget::text(text);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.editable = m_list.isEditable();
    return state;
  }

  QStringList actionNames() const override {
    return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
  }
  // Later: the list waits for the user, the caller for an answer.
  void doAction(const QString& action) override {
    if (action == showMenuAction())
      QMetaObject::invokeMethod(&m_list, &CDropDown::showPopup, Qt::QueuedConnection);
    else
      QAccessibleWidget::doAction(action);
  }

 private:
  CDropDown& m_list;
};

}  // namespace

QAccessibleInterface* MakeControlInterface(QObject* object) {
  if (auto* const list = qobject_cast<CDropDown*>(object)) return new AccessibleDropDown(*list);
  if (auto* const date = qobject_cast<CDatePicker*>(object))
    return new QAccessibleWidget(date, QAccessible::Grouping);
  if (auto* const picture = qobject_cast<CPictureLabel*>(object))
    return new QAccessibleWidget(picture, QAccessible::Graphic);
  return nullptr;
}

}  // namespace quill
