#include "platform/ChromeLayout.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

constexpr Rgb kTitleText = 0xFFFFFF;
constexpr Rgb kTitleButton = 0x5B7F95;
constexpr Rgb kTitleButtonPressed = 0x8FB0C4;
constexpr Rgb kNotice = 0xFFC83D;
constexpr Rgb kNoticePressed = 0xFFE7A8;
constexpr Rgb kNoticeText = 0x000000;
constexpr Rgb kBarText = 0x000000;
constexpr Rgb kBarDisabled = 0x8C8C8C;
constexpr Rgb kBarPressed = 0xD6EDBA;
constexpr int kTitleMargin = 5;
constexpr int kOKWidth = 30;
constexpr int kCloseWidth = 22;
constexpr int kNoticeWidth = 76;
constexpr int kBarPadding = 7;  // left and right of a menu's title
constexpr int kPictureSize = 14;
constexpr int kPictureButtonWidth = 26;

QRect PictureArea(QRect area) {
  return {area.left() + (area.width() - kPictureSize) / 2,
          area.top() + (area.height() - kPictureSize) / 2, kPictureSize, kPictureSize};
}

PaintedRow TitleButton(int key, QRect area, const QString& spoken, bool pressed) {
  PaintedRow row{.Rectangle = area, .Key = key, .SpokenName = spoken, .Role = PaintedRole::Button};
  row.Items.push_back({.Rectangle = area.adjusted(1, 4, -1, -4),
                       .Fill = pressed ? kTitleButtonPressed : kTitleButton});
  return row;
}

PaintedRow CloseButton(QRect area, bool pressed) {
  PaintedRow row = TitleButton(kTitleCloseKey, area, QStringLiteral("Close"), pressed);
  row.Items.push_back(
      {.Rectangle = PictureArea(area), .Color = kTitleText, .Picture = &resources::kClosePicture});
  return row;
}

PaintedRow OKButton(QRect area, bool pressed) {
  PaintedRow row = TitleButton(kTitleOKKey, area, QStringLiteral("OK"), pressed);
  row.Items.push_back({.Rectangle = area,
                       .Text = QStringLiteral("OK"),
                       .Alignment = TextAlign::Centre,
                       .Weight = TextWeight::Bold,
                       .Color = kTitleText});
  return row;
}

PaintedRow Notice(QRect area, const TitleNotice& notice, bool pressed) {
  PaintedRow row{.Rectangle = area,
                 .Key = kTitleNoticeKey,
                 .SpokenName = notice.SpokenName,
                 .Role = PaintedRole::Button};
  const QRect picture(area.left() + 3, area.top() + (area.height() - kPictureSize) / 2,
                      kPictureSize, kPictureSize);
  row.Items = {
      {.Rectangle = area.adjusted(1, 4, -1, -4), .Fill = pressed ? kNoticePressed : kNotice},
      {.Rectangle = picture, .Color = kNoticeText, .Picture = &resources::kIncomingPicture},
      {.Rectangle = area.adjusted(kPictureSize + 6, 0, -2, 0),
       .Text = notice.Text,
       .Color = kNoticeText}};
  return row;
}

PaintedRow BarRow(QRect area, int key, const MenuItem& button, bool pressed) {
  PaintedRow row{
      .Rectangle = area, .Key = key, .SpokenName = button.Text, .Role = PaintedRole::Button};
  row.State.setFlag(PaintedStateFlag::Current, pressed);
  row.State.setFlag(PaintedStateFlag::Disabled, !button.Enabled);
  row.State.setFlag(PaintedStateFlag::Checked, button.Checked);
  if (pressed || button.Checked)
    row.Items.push_back({.Rectangle = area.adjusted(1, 2, -1, -2), .Fill = kBarPressed});
  return row;
}

void AddBarPicture(PaintedRow& row, const resources::Picture* picture, Rgb color) {
  row.Items.push_back(
      {.Rectangle = PictureArea(row.Rectangle), .Color = color, .Picture = picture});
}

void AddBarText(PaintedRow& row, const QString& text, Rgb color) {
  row.Items.push_back(
      {.Rectangle = row.Rectangle, .Text = text, .Alignment = TextAlign::Centre, .Color = color});
}

// Where the first of the buttons with a picture begins, so that the last one ends at the right.
int PicturesLeft(const MenuBarModel& model, QSize size) {
  const auto count = std::ranges::count_if(model.Buttons, &MenuItem::Picture);
  return size.width() - 2 - static_cast<int>(count) * kPictureButtonWidth;
}

int TextCellWidth(const QString& text, const TextWidth& width) {
  return static_cast<int>(std::ceil(width(text))) + 2 * kBarPadding;
}

}  // namespace

std::vector<PaintedRow> LayOutTitleBar(const TitleBarModel& model, QSize size) {
  std::vector<PaintedRow> rows;
  int right = size.width() - 2;
  std::vector<PaintedRow> buttons;
  if (model.HasClose) {
    right -= kCloseWidth;
    buttons.push_back(
        CloseButton({right, 0, kCloseWidth, size.height()}, model.Pressed == kTitleCloseKey));
  }
  if (model.HasOK) {
    right -= kOKWidth;
    buttons.push_back(OKButton({right, 0, kOKWidth, size.height()}, model.Pressed == kTitleOKKey));
  }
  if (model.Notice) {
    right -= kNoticeWidth;
    buttons.push_back(Notice({right, 0, kNoticeWidth, size.height()}, *model.Notice,
                             model.Pressed == kTitleNoticeKey));
  }
  const QRect textArea{kTitleMargin, 0, right - 2 * kTitleMargin, size.height()};
  PaintedRow text{.Rectangle = textArea,
                  .Key = kTitleTextKey,
                  .SpokenName = model.Caption,
                  .Role = PaintedRole::Text,
                  .State = PaintedStateFlag::HasPopup};
  text.Items.push_back({.Rectangle = textArea,
                        .Text = model.Caption,
                        .Weight = TextWeight::Bold,
                        .Color = kTitleText});
  rows.push_back(std::move(text));
  rows.insert(rows.end(), buttons.begin(), buttons.end());
  return rows;
}

std::vector<PaintedRow> LayOutMenuBar(const MenuBarModel& model, QSize size, int open,
                                      const TextWidth& width) {
  std::vector<PaintedRow> rows;
  int x = 2;
  int pictureX = PicturesLeft(model, size);
  const auto nextCell = [&](const QString& text) {
    const QRect cell{x, 0, TextCellWidth(text, width), size.height()};
    x += cell.width();
    return cell;
  };
  const auto nextPicture = [&] {
    const QRect cell{pictureX, 0, kPictureButtonWidth, size.height()};
    pictureX += cell.width();
    return cell;
  };
  for (const MenuItem& button : model.Buttons) {
    const int key = static_cast<int>(rows.size());
    const QRect area = button.Picture ? nextPicture() : nextCell(button.Text);
    PaintedRow& row = rows.emplace_back(BarRow(area, key, button, key == open));
    const Rgb color = button.Enabled ? kBarText : kBarDisabled;
    button.Picture ? AddBarPicture(row, button.Picture, color)
                   : AddBarText(row, button.Text, color);
  }
  for (const Menu& menu : model.Menus) {
    const int key = static_cast<int>(rows.size());
    const MenuItem title{.Text = menu.Text};
    PaintedRow& row = rows.emplace_back(BarRow(nextCell(menu.Text), key, title, key == open));
    row.Role = PaintedRole::MenuItem;
    row.State.setFlag(PaintedStateFlag::HasPopup);
    AddBarText(row, menu.Text, kBarText);
  }
  return rows;
}

PaintedRow LayOutSmallCaption(const QString& caption, int width) {
  const QRect bar(0, 0, width, kSmallCaptionHeight);
  PaintedRow row{.Rectangle = bar, .SpokenName = caption, .Role = PaintedRole::Text};
  row.Items.push_back({.Rectangle = bar, .Fill = kTitleBackground});
  row.Items.push_back({.Rectangle = bar.adjusted(kTitleMargin, 0, -kTitleMargin, 0),
                       .Text = caption,
                       .Weight = TextWeight::Bold,
                       .Color = kTitleText});
  return row;
}

}  // namespace quill
