#include "platform/CalendarLayout.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace quill {

namespace {

constexpr int kHeaderHeight = 22;
constexpr int kHeadHeight = 15;
constexpr int kWeeks = 6;
constexpr int kDaysOfWeek = 7;
constexpr int kButtonWidth = 16;
constexpr int kYearWidth = 32;
constexpr int kPictureSize = 14;

constexpr Rgb kHeaderGround = 0xDDE6EB;
constexpr Rgb kPressedGround = 0xD6EDBA;
constexpr Rgb kLine = 0x2F5568;
constexpr Rgb kHeadText = 0x2F5568;
constexpr Rgb kText = 0x000000;
constexpr Rgb kFaded = 0x8C8C8C;
constexpr Rgb kGround = 0xFFFFFF;
constexpr Rgb kCurrentGround = 0x336699;
constexpr Rgb kCurrentText = 0xFFFFFF;

struct Button {
  int Key;
  QStringView SpokenName;
  const resources::Picture* Picture;
};
constexpr std::array kButtons = {
    Button{kPreviousMonthKey, u"Previous month", &resources::kLeftPicture},
    Button{kNextMonthKey, u"Next month", &resources::kRightPicture},
    Button{kTenYearsBackKey, u"Ten years back", &resources::kFarLeftPicture},
    Button{kPreviousYearKey, u"Previous year", &resources::kLeftPicture},
    Button{kNextYearKey, u"Next year", &resources::kRightPicture},
    Button{kTenYearsOnKey, u"Ten years on", &resources::kFarRightPicture},
};

// Lays the header out from left to right; the month has what is left.
class Header {
 public:
  Header(const CalendarModel& model, int width) : m_model(model), m_width(width) {}

  std::vector<PaintedRow> LayOut() {
    const QLocale locale = QLocale::c();
    const int buttons = static_cast<int>(kButtons.size()) * kButtonWidth;
    AddButton(kButtons[0]);
    AddText(locale.monthName(m_model.Current.month()), m_width - buttons - kYearWidth);
    AddButton(kButtons[1]);
    AddButton(kButtons[2]);
    AddButton(kButtons[3]);
    AddText(QString::number(m_model.Current.year()), kYearWidth);
    AddButton(kButtons[4]);
    AddButton(kButtons[5]);
    return std::move(m_rows);
  }

 private:
  QRect Take(int width) {
    const QRect area(m_left, 0, width, kHeaderHeight);
    m_left += width;
    return area;
  }

  void AddButton(const Button& button) {
    const QRect area = Take(kButtonWidth);
    const bool leads = DateAfterCalendarButton(m_model.Current, button.Key) != m_model.Current;
    const Rgb ground = m_model.Pressed == button.Key ? kPressedGround : kHeaderGround;
    const QRect picture(area.left() + (area.width() - kPictureSize) / 2,
                        area.top() + (area.height() - kPictureSize) / 2, kPictureSize,
                        kPictureSize);
    PaintedRow row{
        .Rectangle = area,
        .Key = button.Key,
        .SpokenName = button.SpokenName.toString(),
        .Role = PaintedRole::Button,
        .Items = {
            {.Rectangle = area, .Fill = ground},
            {.Rectangle = picture, .Color = leads ? kLine : kFaded, .Picture = button.Picture}}};
    row.State.setFlag(PaintedStateFlag::Disabled, !leads);
    m_rows.push_back(std::move(row));
  }

  void AddText(const QString& text, int width) {
    const QRect area = Take(width);
    m_rows.push_back({.Rectangle = area,
                      .Key = kCalendarTextKey,
                      .SpokenName = text,
                      .Role = PaintedRole::Text,
                      .Items = {{.Rectangle = area, .Fill = kHeaderGround},
                                {.Rectangle = area,
                                 .Text = text,
                                 .Alignment = TextAlign::Centre,
                                 .Weight = TextWeight::Bold}}});
  }

  const CalendarModel& m_model;
  const int m_width;
  int m_left = 0;
  std::vector<PaintedRow> m_rows;
};

// The column of a weekday; the week begins on Sunday, the seventh day to Qt.
int ColumnOf(QDate day) { return day.dayOfWeek() % kDaysOfWeek; }

QDate FirstDayShown(QDate current) {
  const QDate firstOfMonth(current.year(), current.month(), 1);
  return firstOfMonth.addDays(-ColumnOf(firstOfMonth));
}

// What the columns cannot share equally is left at both sides.
QRect CellArea(QSize size, int column, int top, int height) {
  const int width = size.width() / kDaysOfWeek;
  const int left = (size.width() - width * kDaysOfWeek) / 2;
  return {left + column * width, top, width, height};
}

PaintedRow LayOutHead(QDate day, QSize size) {
  const QRect area = CellArea(size, ColumnOf(day), kHeaderHeight, kHeadHeight);
  const QString name = QLocale::c().dayName(day.dayOfWeek());
  return {.Rectangle = area,
          .Key = kCalendarTextKey,
          .SpokenName = name,
          .Role = PaintedRole::Text,
          .Items = {{.Rectangle = area,
                     .Text = name.left(1),
                     .Alignment = TextAlign::Centre,
                     .Color = kHeadText}}};
}

QString SpokenDay(const CalendarModel& model, QDate day) {
  const QString spoken = QLocale::c().toString(day, QStringLiteral("dddd, MMMM d, yyyy"));
  return day == model.Today ? spoken + QStringLiteral(", today") : spoken;
}

Rgb GroundOf(const CalendarModel& model, QDate day) {
  if (model.Pressed == day.toJulianDay()) return kPressedGround;
  return day == model.Current ? kCurrentGround : kGround;
}

Rgb TextColorOf(const CalendarModel& model, QDate day) {
  if (GroundOf(model, day) == kCurrentGround) return kCurrentText;
  return day.month() == model.Current.month() ? kText : kFaded;
}

PaintedRow LayOutDay(const CalendarModel& model, QDate day, QRect area) {
  PaintedRow row{.Rectangle = area,
                 .Key = static_cast<int>(day.toJulianDay()),
                 .SpokenName = SpokenDay(model, day),
                 .Role = PaintedRole::Button,
                 .State = PaintedStateFlag::Selectable};
  row.State.setFlag(PaintedStateFlag::Current, day == model.Current);
  row.State.setFlag(PaintedStateFlag::Selected, day == model.Current);
  const QRect inner = area.adjusted(1, 1, -1, -1);
  if (day == model.Today) row.Items.push_back({.Rectangle = area, .Fill = kLine});
  row.Items.push_back({.Rectangle = inner, .Fill = GroundOf(model, day)});
  row.Items.push_back({.Rectangle = area,
                       .Text = QString::number(day.day()),
                       .Alignment = TextAlign::Centre,
                       .Color = TextColorOf(model, day)});
  return row;
}

QDate AfterMonths(QDate from, int months) { return KeepInCalendar(from.addMonths(months)); }

QDate AfterYears(QDate from, int years) { return KeepInCalendar(from.addYears(years)); }

QDate AfterPage(QDate from, int step, Qt::KeyboardModifiers modifiers) {
  return modifiers.testFlag(Qt::ControlModifier) ? AfterYears(from, step) : AfterMonths(from, step);
}

}  // namespace

QDate KeepInCalendar(QDate date) {
  return std::clamp(date, FirstCalendarDate(), LastCalendarDate());
}

std::vector<PaintedRow> LayOutCalendar(const CalendarModel& model, QSize size) {
  std::vector<PaintedRow> rows = Header(model, size.width()).LayOut();
  const QDate first = FirstDayShown(model.Current);
  for (int i = 0; i < kDaysOfWeek; ++i) rows.push_back(LayOutHead(first.addDays(i), size));
  const int weeksTop = kHeaderHeight + kHeadHeight;
  const int height = (size.height() - weeksTop) / kWeeks;
  for (int i = 0; i < kWeeks * kDaysOfWeek; ++i) {
    const QDate day = first.addDays(i);
    if (day != KeepInCalendar(day)) continue;
    const int top = weeksTop + i / kDaysOfWeek * height;
    rows.push_back(LayOutDay(model, day, CellArea(size, ColumnOf(day), top, height)));
  }
  return rows;
}

std::optional<QDate> DayOfCalendarKey(int key) {
  if (key <= kTenYearsOnKey) return std::nullopt;
  return QDate::fromJulianDay(key);
}

QDate DateAfterCalendarButton(QDate from, int key) {
  switch (key) {
    case kPreviousMonthKey:
      return AfterMonths(from, -1);
    case kNextMonthKey:
      return AfterMonths(from, 1);
    case kTenYearsBackKey:
      return AfterYears(from, -10);
    case kPreviousYearKey:
      return AfterYears(from, -1);
    case kNextYearKey:
      return AfterYears(from, 1);
    case kTenYearsOnKey:
      return AfterYears(from, 10);
    default:
      return from;
  }
}

std::optional<QDate> DateAfterCalendarKey(QDate from, int key, Qt::KeyboardModifiers modifiers) {
  switch (key) {
    case Qt::Key_Left:
      return KeepInCalendar(from.addDays(-1));
    case Qt::Key_Right:
      return KeepInCalendar(from.addDays(1));
    case Qt::Key_Up:
      return KeepInCalendar(from.addDays(-kDaysOfWeek));
    case Qt::Key_Down:
      return KeepInCalendar(from.addDays(kDaysOfWeek));
    case Qt::Key_PageUp:
      return AfterPage(from, -1, modifiers);
    case Qt::Key_PageDown:
      return AfterPage(from, 1, modifiers);
    case Qt::Key_Home:
      return QDate(from.year(), from.month(), 1);
    case Qt::Key_End:
      return QDate(from.year(), from.month(), from.daysInMonth());
    default:
      return std::nullopt;
  }
}

}  // namespace quill
