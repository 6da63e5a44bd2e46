#include "platform/ui/SectionEdit.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

#include "platform/ui/EditMenu.h"

namespace quill {

CSectionEdit::CSectionEdit(const QString& format, QWidget* parent) : QDateTimeEdit(parent) {
  setLocale(QLocale::c());
  setDisplayFormat(format);
  setButtonSymbols(NoButtons);
  setFrame(false);
  lineEdit()->installEventFilter(this);
}

void CSectionEdit::ShowMenu(QPoint at) { ShowEditMenu(*lineEdit(), lineEdit()->mapFrom(this, at)); }

// The menu key comes as a key too: it is taken there.
void CSectionEdit::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard) ShowMenu(event->pos());
}

std::optional<int> CSectionEdit::SectionOfKey(const QKeyEvent& event) const {
  if (event.modifiers() != Qt::NoModifier) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Left:
      return std::max(currentSectionIndex() - 1, 0);
    case Qt::Key_Right:
      return std::min(currentSectionIndex() + 1, sectionCount() - 1);
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return sectionCount() - 1;
    default:
      return std::nullopt;
  }
}

// False for keys that do not go from section to section.
bool CSectionEdit::GoToSection(const QKeyEvent& event) {
  const auto section = SectionOfKey(event);
  if (!section) return false;
  setSelectedSection(sectionAt(*section));
  return true;
}

void CSectionEdit::keyPressEvent(QKeyEvent* event) {
  if (GoToSection(*event)) return;
  IsMenuKey(*event) ? ShowMenu(rect().bottomLeft()) : QDateTimeEdit::keyPressEvent(event);
}

// Whoever drew the pen over a part of the text has selected that.
bool CSectionEdit::eventFilter(QObject* watched, QEvent* event) {
  const bool handled = QDateTimeEdit::eventFilter(watched, event);
  const bool isTap = event->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText();
  if (isTap && watched == lineEdit()) setSelectedSection(currentSection());
  return handled;
}

}  // namespace quill
