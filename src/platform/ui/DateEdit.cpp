#include "platform/ui/DateEdit.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/CalendarLayout.h"
#include "platform/DatePictures.h"

namespace quill {

CDateEdit::CDateEdit(QWidget* parent) : CSectionEdit(QtFormat(kTypedDatePicture), parent) {
  setDateRange(FirstCalendarDate(), LastCalendarDate());
  setInputMethodHints(Qt::ImhDigitsOnly);
  QPalette colors = palette();  // its cell is white, whether there is a day or not
  colors.setColor(QPalette::Disabled, QPalette::Base, colors.color(QPalette::Base));
  setPalette(colors);
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
  if (!IsNeedlessSlash(*event)) CSectionEdit::keyPressEvent(event);
}

}  // namespace quill
