#include "platform/ToggleLayout.h"

#include "platform/ScreenLayout.h"

namespace quill {

namespace {

constexpr Rgb kOnGround = 0x336699;
constexpr Rgb kOffGround = 0xFFFFFF;
constexpr Rgb kPressedGround = 0xD6EDBA;
constexpr Rgb kOnText = 0xFFFFFF;
constexpr Rgb kOffText = 0x000000;
constexpr Rgb kBorder = 0x5B7F95;
constexpr Rgb kFocusBorder = 0x000000;
constexpr int kMarkSize = 14;

Rgb GroundOf(const ToggleModel& model) {
  if (model.IsPressed) return kPressedGround;
  return model.IsOn ? kOnGround : kOffGround;
}

Rgb TextColor(const ToggleModel& model) {
  return model.IsOn && !model.IsPressed ? kOnText : kOffText;
}

}  // namespace

PaintedRow LayOutToggle(const ToggleModel& model, QSize size) {
  const QRect area(QPoint(0, 0), size);
  const int border = model.HasFocus ? 2 : 1;
  const int textTop = (size.height() - kCellHeight - kMarkSize) / 2;
  PaintedRow row{.Rectangle = area, .SpokenName = model.Text, .Role = PaintedRole::CheckBox};
  row.State.setFlag(PaintedStateFlag::Checked, model.IsOn);
  row.Items.push_back({.Rectangle = area, .Fill = model.HasFocus ? kFocusBorder : kBorder});
  row.Items.push_back(
      {.Rectangle = area.adjusted(border, border, -border, -border), .Fill = GroundOf(model)});
  row.Items.push_back({.Rectangle = {0, textTop, size.width(), kCellHeight},
                       .Text = model.Text,
                       .Alignment = TextAlign::Centre,
                       .Color = TextColor(model)});
  if (model.IsOn)
    row.Items.push_back(
        {.Rectangle = {(size.width() - kMarkSize) / 2, textTop + kCellHeight, kMarkSize, kMarkSize},
         .Color = TextColor(model),
         .Picture = &resources::kCheckPicture});
  return row;
}

}  // namespace quill
