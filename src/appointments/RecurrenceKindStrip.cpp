#include "appointments/RecurrenceKindStrip.h"

#include <algorithm>
#include <array>

namespace quill {

namespace {

constexpr std::array<QStringView, 4> kTitles = {u"Daily", u"Weekly", u"Monthly", u"Yearly"};
constexpr int kCount = static_cast<int>(kTitles.size());

constexpr int kTabTop = 5;
constexpr int kTabWidth = 58;
constexpr int kTabHeight = 14;
constexpr int kLineTop = kTabTop + kTabHeight;

constexpr Rgb kGround = 0xDDE6EB;
constexpr Rgb kPressedGround = 0xD6EDBA;
constexpr Rgb kLine = 0x2F5568;

QRect TabArea(int kind) { return {kind * kTabWidth, kTabTop, kTabWidth, kTabHeight}; }

Rgb GroundOf(const KindStripModel& model, RecurrenceKind kind) {
  if (kind == model.Pressed) return kPressedGround;
  return kind == model.Kind ? kKindStripGround : kGround;
}

void AddBorder(PaintedRow& row) {
  const QRect& area = row.Rectangle;
  for (const QRect& side : {QRect(area.left(), area.top(), area.width(), 1),
                            QRect(area.left(), area.top(), 1, area.height()),
                            QRect(area.right(), area.top(), 1, area.height())})
    row.Items.push_back({.Rectangle = side, .Fill = kLine});
}

PaintedRow LayOutTab(const KindStripModel& model, int index) {
  const auto kind = static_cast<RecurrenceKind>(index);
  const bool isChosen = kind == model.Kind;
  const QRect area = TabArea(index);
  const QString title = kTitles[static_cast<std::size_t>(index)].toString();
  PaintedRow row{.Rectangle = area,
                 .Key = index,
                 .SpokenName = title,
                 .Role = PaintedRole::PageTab,
                 .State = PaintedStateFlag::Selectable};
  row.State.setFlag(PaintedStateFlag::Selected, isChosen);
  row.State.setFlag(PaintedStateFlag::Current, isChosen);
  row.Items.push_back({.Rectangle = area, .Fill = GroundOf(model, kind)});
  AddBorder(row);
  row.Items.push_back({.Rectangle = area,
                       .Text = title,
                       .Alignment = TextAlign::Centre,
                       .Weight = isChosen ? TextWeight::Bold : TextWeight::Normal});
  return row;
}

// The line is open below the chosen tab; with the focus there are dots instead.
PaintedRow LayOutLine(const KindStripModel& model) {
  const QRect area(kKindStripArea.left(), kLineTop, kKindStripArea.width(), 1);
  PaintedRow row{.Rectangle = area, .Key = -1, .Role = PaintedRole::Separator};
  const QRect chosen = TabArea(static_cast<int>(model.Kind));
  const QRect open(chosen.left() + 1, kLineTop, kTabWidth - 2, 1);
  row.Items.push_back({.Rectangle = area, .Fill = kLine});
  row.Items.push_back({.Rectangle = open, .Fill = kKindStripGround});
  if (model.HasFocus)
    row.Items.push_back({.Rectangle = open, .Fill = kLine, .Pattern = FillPattern::Dots});
  return row;
}

}  // namespace

std::vector<PaintedRow> LayOutKindStrip(const KindStripModel& model) {
  std::vector<PaintedRow> rows;
  rows.reserve(kCount + 1);
  for (int kind = 0; kind < kCount; ++kind) rows.push_back(LayOutTab(model, kind));
  rows.push_back(LayOutLine(model));
  return rows;
}

std::optional<RecurrenceKind> KindAt(QPoint at) {
  for (int kind = 0; kind < kCount; ++kind)
    if (TabArea(kind).contains(at)) return static_cast<RecurrenceKind>(kind);
  return std::nullopt;
}

std::optional<RecurrenceKind> KindAfterKey(RecurrenceKind kind, int key) {
  const auto at = [](int index) {
    return static_cast<RecurrenceKind>(std::clamp(index, 0, kCount - 1));
  };
  switch (key) {
    case Qt::Key_Left:
      return at(static_cast<int>(kind) - 1);
    case Qt::Key_Right:
      return at(static_cast<int>(kind) + 1);
    case Qt::Key_Home:
      return at(0);
    case Qt::Key_End:
      return at(kCount - 1);
    default:
      return std::nullopt;
  }
}

}  // namespace quill
