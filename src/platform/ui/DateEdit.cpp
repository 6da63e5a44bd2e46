#include "platform/ui/DateEdit.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

#include "platform/CalendarLayout.h"
#include "platform/DatePictures.h"
#include "platform/ui/EditMenu.h"

namespace quill {

CDateEdit::CDateEdit(QWidget* parent) : QDateEdit(parent) {
  setLocale(QLocale::c());
  setDisplayFormat(QtFormat(kTypedDatePicture));
  setDateRange(FirstCalendarDate(), LastCalendarDate());
  setButtonSymbols(NoButtons);
  setFrame(false);
  setInputMethodHints(Qt::ImhDigitsOnly);
  QPalette colors = palette();  // its cell is white, whether there is a day or not
  colors.setColor(QPalette::Disabled, QPalette::Base, colors.color(QPalette::Base));
  setPalette(colors);
}

void CDateEdit::ShowMenu(QPoint at) { ShowEditMenu(*lineEdit(), lineEdit()->mapFrom(this, at)); }

// The menu key comes as a key too: it is taken there.
void CDateEdit::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard) ShowMenu(event->pos());
}

// False for keys that do not go from section to section.
bool CDateEdit::GoToSection(const QKeyEvent& event) {
  const bool left = event.key() == Qt::Key_Left;
  if (event.modifiers() != Qt::NoModifier || (!left && event.key() != Qt::Key_Right)) return false;
  const int section = std::clamp(currentSectionIndex() + (left ? -1 : 1), 0, sectionCount() - 1);
  setSelectedSection(sectionAt(section));
  return true;
}

// A full section hands over to the next one by itself; who types the slash all the same would skip
// that one.
bool CDateEdit::IsNeedlessSlash(const QKeyEvent& event) const {
  const bool isNew = currentSectionIndex() > 0 && lineEdit()->hasSelectedText();
  return event.text() == QStringLiteral("/") && isNew;
}

// The keys that open the calendar are the picker's.
void CDateEdit::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);
  if (alt && event->key() == Qt::Key_Down) return event->ignore();
  if (IsNeedlessSlash(*event) || GoToSection(*event)) return;
  if (!IsMenuKey(*event)) return QDateEdit::keyPressEvent(event);
  ShowMenu(rect().bottomLeft());
}

}  // namespace quill
