#include "platform/ui/DateEdit.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

#include "platform/CalendarLayout.h"
#include "platform/Clock.h"
#include "platform/DatePictures.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kYearsAhead = 20;

bool IsDigit(const QString& text) {
  return text.size() == 1 && text.front() >= u'0' && text.front() <= u'9';
}

// The latest one that ends so and is not too far ahead.
int YearOfTwoDigits(const QString& digits) {
  const int latest = g_services.Clock->Now().date().year() + kYearsAhead;
  const int year = latest - latest % 100 + digits.toInt();
  return year > latest ? year - 100 : year;
}

}  // namespace

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
bool CDateEdit::IsForParent(const QKeyEvent& event) const {
  const bool isDown = event.key() == Qt::Key_Down;
  if (event.modifiers().testFlag(Qt::AltModifier)) return isDown;
  return m_handsOn && (isDown || event.key() == Qt::Key_Up);
}

void CDateEdit::keyPressEvent(QKeyEvent* event) {
  if (IsForParent(*event)) return event->ignore();
  if (IsNeedlessSlash(*event)) return;
  if (IsDigit(event->text())) return TypeDigit(*event);
  const bool erases = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
  if (!erases) TakeShortYear();
  CSectionEdit::keyPressEvent(event);
  if (event->text() != QStringLiteral("/")) Forget();
}

// The editor would drop the digits of a year that none of the calendar begins with.
void CDateEdit::TypeDigit(QKeyEvent& event) {
  NoteDigit(event.text());
  if (!IsShortYearBegun()) {
    CSectionEdit::keyPressEvent(&event);
    return PutNoted(date().year());
  }
  if (m_year.size() < 2) return;
  TakeShortYear();
  setSelectedSection(YearSection);
}

void CDateEdit::NoteDigit(const QString& digit) {
  const bool isYear = currentSection() == YearSection;
  if (!isYear && currentSection() != DaySection) return;
  QString& typed = isYear ? m_year : m_day;
  const bool isWithheld = isYear && IsShortYearBegun();  // what is shown is selected still
  if (lineEdit()->hasSelectedText() && !isWithheld)
    typed = digit;
  else if (!typed.isEmpty())
    typed += digit;
}

bool CDateEdit::IsShortYearBegun() const {
  if (m_year.isEmpty() || currentSection() != YearSection) return false;
  const int millennium = m_year.front().digitValue();
  return millennium < FirstCalendarDate().year() / 1000 ||
         millennium > LastCalendarDate().year() / 1000;
}

// The day that is shown, in this year, with the day of the month that was typed where it has that.
QDate CDateEdit::Noted(int year) const {
  const int last = QDate(year, date().month(), 1).daysInMonth();
  const int typed = m_day.size() == 2 ? m_day.toInt() : 0;
  const bool waited = typed > date().day() && typed <= last;
  return {year, date().month(), waited ? typed : std::min(date().day(), last)};
}

void CDateEdit::PutNoted(int year) {
  const QDate noted = Noted(year);
  if (noted != date()) setDate(noted);
}

void CDateEdit::TakeShortYear() {
  if (m_year.size() == 2) setDate(Noted(YearOfTwoDigits(std::exchange(m_year, {}))));
}

void CDateEdit::Forget() {
  m_day.clear();
  m_year.clear();
}

void CDateEdit::focusOutEvent(QFocusEvent* event) {
  TakeShortYear();
  CSectionEdit::focusOutEvent(event);
  Forget();
}

bool CDateEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    TakeShortYear();
    Forget();
  }
  return CSectionEdit::eventFilter(watched, event);
}

}  // namespace quill
