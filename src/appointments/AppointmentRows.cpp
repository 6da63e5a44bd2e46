#include "appointments/AppointmentRows.h"

#include <algorithm>
#include <array>

#include "appointments/SoundNames.h"
#include "platform/DatePictures.h"
#include "platform/ScreenLayout.h"
#include "resources/AppointmentDialogs.h"
#include "resources/SoundPictures.h"

namespace quill {

namespace {

constexpr int kTop = resources::kAppointmentRowsTop;
constexpr int kHeight = resources::kAppointmentRowHeight;
constexpr int kLabelLeft = 3;
constexpr int kLabelWidth = 52;
constexpr int kValueLeft = 60;
constexpr int kRightMargin = 4;
constexpr int kPictureSize = 16;
constexpr int kHeadingLeft = 8;
constexpr int kHeadingWidth = kScreenWidth - 2 * kHeadingLeft;

constexpr Rgb kLabelColor = 0x3232FF;
constexpr Rgb kTextColor = 0x000000;
constexpr Rgb kGrey = 0x999999;
constexpr Rgb kLinkColor = 0x3232FF;
constexpr Rgb kPictureColor = 0x2F5568;
constexpr Rgb kLineColor = 0x999999;
constexpr Rgb kCurrentFill = 0xE4ECF7;

constexpr std::array kSubjectControls = {AppointmentIds::kSubject};
constexpr std::array kStartControls = {AppointmentIds::kStartDate, AppointmentIds::kStartTime};
constexpr std::array kEndControls = {AppointmentIds::kEndDate, AppointmentIds::kEndTime};
constexpr std::array kAllDayControls = {AppointmentIds::kAllDay};
constexpr std::array kRecurrenceControls = {AppointmentIds::kRecurrence};
constexpr std::array kAlarmControls = {AppointmentIds::kAlarm, AppointmentIds::kAlarmAmount,
                                       AppointmentIds::kAlarmUnit};
constexpr std::array kSoundControls = {AppointmentIds::kSound, AppointmentIds::kPlay};

struct RowFacts {
  QStringView Label;
  std::span<const int> Controls;
};

// By AppointmentRow.
const std::array<RowFacts, kAppointmentRowCount> kRows = {{
    {u"Subject", kSubjectControls},
    {u"Start", kStartControls},
    {u"End", kEndControls},
    {u"All day", kAllDayControls},
    {u"Recur", kRecurrenceControls},
    {u"Alarm", kAlarmControls},
    {u"Sound", kSoundControls},
    {u"Memo", {}},
}};

const RowFacts& FactsOf(AppointmentRow row) { return kRows[static_cast<std::size_t>(row)]; }

QString MomentText(const Moment& moment, const AppointmentForm& form) {
  const QString time = FormatTime(moment.Time, kTimePicture);
  if (form.Recurrence != RecurrenceChoice::Once)
    return form.AllDay ? QStringLiteral("All day recurring") : time;
  const QString date = FormatDate(moment.Date, kDatePicture);
  return form.AllDay ? date : date + u' ' + time;
}

QString AlarmText(const AppointmentForm& form) {
  const QString time = QString::number(form.Before.Amount) + u' ' +
                       kAlarmUnitNames[static_cast<std::size_t>(form.Before.Unit)].toString();
  return form.Alarm == Alarm::Yes ? time : QStringLiteral("No");
}

// Without an alarm nothing sounds either.
bool IsGrey(AppointmentRow row, const AppointmentForm& form) {
  const bool isAlarms = row == AppointmentRow::Alarm || row == AppointmentRow::Sound;
  return isAlarms && form.Alarm == Alarm::No;
}

Rgb ValueColor(AppointmentRow row, const AppointmentForm& form) {
  if (IsGrey(row, form)) return kGrey;
  return row == AppointmentRow::Memo ? kLinkColor : kTextColor;
}

void AddSoundPictures(const AppointmentForm& form, PaintedRow& painted) {
  const bool silent = form.Sound.isEmpty();
  const std::array pictures = {
      silent ? &resources::kSilentBellPicture : &resources::kBellPicture,
      silent ? &resources::kSilentSpeakerPicture : &resources::kSpeakerPicture};
  int left = kScreenWidth - kRightMargin - 2 * kPictureSize;
  for (const resources::Picture* picture : pictures) {
    painted.Items.push_back(
        {.Rectangle = {left, painted.Rectangle.top() + 2, kPictureSize, kPictureSize},
         .Color = silent || IsGrey(AppointmentRow::Sound, form) ? kGrey : kPictureColor,
         .Picture = picture});
    left += kPictureSize;
  }
}

int ValueWidth(AppointmentRow row) {
  const int width = kScreenWidth - kRightMargin - kValueLeft;
  return row == AppointmentRow::Sound ? width - 2 * kPictureSize - kRightMargin : width;
}

void MarkCurrent(PaintedRow& painted) {
  painted.State.setFlag(PaintedStateFlag::Current);
  painted.Items.insert(painted.Items.begin(),
                       {.Rectangle = painted.Rectangle, .Fill = kCurrentFill});
}

void AddValue(AppointmentRow row, const AppointmentForm& form, const TextWidth& width,
              PaintedRow& painted) {
  const QString value = OnOneLine(ValueText(row, form));
  painted.Items.push_back(
      {.Rectangle = {kValueLeft, painted.Rectangle.top(), ValueWidth(row), kHeight},
       .Text = ElideText(value, ValueWidth(row), width),
       .Color = ValueColor(row, form)});
  if (row == AppointmentRow::Sound) AddSoundPictures(form, painted);
}

// The label and the line below the value.
PaintedRow LayOutEmptyRow(AppointmentRow row, const AppointmentForm& form) {
  const QRect area = AppointmentRowArea(row);
  const QString label = FactsOf(row).Label.toString();
  PaintedRow painted{.Rectangle = area,
                     .Key = static_cast<int>(row),
                     .SpokenName = label + QStringLiteral(", ") + OnOneLine(ValueText(row, form))};
  const bool isLink = row == AppointmentRow::Memo;
  painted.Role = isLink ? PaintedRole::Button : PaintedRole::ListItem;
  painted.Items.push_back({.Rectangle = {kLabelLeft, area.top(), kLabelWidth, kHeight},
                           .Text = label,
                           .Alignment = TextAlign::Right,
                           .Color = IsGrey(row, form) ? kGrey : kLabelColor});
  painted.Items.push_back({.Rectangle = {kValueLeft, area.bottom(), kScreenWidth - kValueLeft, 1},
                           .Fill = kLineColor,
                           .Pattern = FillPattern::Dots});
  return painted;
}

}  // namespace

std::span<const int> ControlsOf(AppointmentRow row) { return FactsOf(row).Controls; }

std::optional<AppointmentRow> RowOfControl(int id) {
  if (id == AppointmentIds::kMemo) return AppointmentRow::Memo;
  for (int i = 0; i < kAppointmentRowCount; ++i) {
    const auto row = static_cast<AppointmentRow>(i);
    if (std::ranges::find(ControlsOf(row), id) != ControlsOf(row).end()) return row;
  }
  return std::nullopt;
}

QRect AppointmentRowArea(AppointmentRow row) {
  return {0, kTop + static_cast<int>(row) * kHeight, kScreenWidth, kHeight};
}

std::optional<AppointmentRow> AppointmentRowAt(QPoint at) {
  const int row = (at.y() - kTop) / kHeight;
  if (at.y() < kTop || row >= kAppointmentRowCount) return std::nullopt;
  return static_cast<AppointmentRow>(row);
}

QString ValueText(AppointmentRow row, const AppointmentForm& form) {
  switch (row) {
    case AppointmentRow::Subject:
      return form.Subject;
    case AppointmentRow::Start:
      return MomentText(form.Start, form);
    case AppointmentRow::End:
      return MomentText(form.End, form);
    case AppointmentRow::AllDay:
      return form.AllDay ? QStringLiteral("Yes") : QStringLiteral("No");
    case AppointmentRow::Recurrence:
      return RecurrenceChoiceTexts(form.Start.Date).at(static_cast<int>(form.Recurrence));
    case AppointmentRow::Alarm:
      return AlarmText(form);
    case AppointmentRow::Sound:
      return form.Sound.isEmpty() ? kSoundOff.toString() : form.Sound;
    case AppointmentRow::Memo:
      return QStringLiteral("Edit memo...");
  }
  Q_UNREACHABLE();
}

std::vector<PaintedRow> LayOutAppointmentRows(const AppointmentForm& form,
                                              const AppointmentRowsView& view,
                                              const TextWidth& width) {
  std::vector<PaintedRow> rows;
  for (int i = 0; i < kAppointmentRowCount; ++i) {
    const auto row = static_cast<AppointmentRow>(i);
    rows.push_back(LayOutEmptyRow(row, form));
    const bool isHidden = row == view.Revealed && !ControlsOf(row).empty();
    if (!isHidden) AddValue(row, form, width, rows.back());
    if (row == view.Current) MarkCurrent(rows.back());
  }
  return rows;
}

PaintedRow LayOutAppointmentHeading(const QString& text) {
  constexpr int kTextTop = 12;
  constexpr int kHintTop = 32;
  const QString hint = QStringLiteral("Tap a line to change it.");
  PaintedRow row{.Rectangle = {0, 0, kScreenWidth, kTop}, .Key = -1, .SpokenName = text};
  row.Role = PaintedRole::Text;
  row.Items.push_back({.Rectangle = {kHeadingLeft, kTextTop, kHeadingWidth, kHeight},
                       .Text = text,
                       .Weight = TextWeight::Bold,
                       .Color = kLabelColor});
  row.Items.push_back({.Rectangle = {kHeadingLeft, kHintTop, kHeadingWidth, kHeight},
                       .Text = hint,
                       .Color = kGrey});
  row.Items.push_back({.Rectangle = {0, kTop - 4, kScreenWidth, 1}, .Fill = kTextColor});
  return row;
}

}  // namespace quill
