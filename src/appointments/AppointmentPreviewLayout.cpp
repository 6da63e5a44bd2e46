#include "appointments/AppointmentPreviewLayout.h"

namespace quill {

namespace {

constexpr int kTextLeft = 3;
constexpr int kTextRight = 212;
constexpr int kTextWidth = kTextRight - kTextLeft;
constexpr int kTextHeight = 16;
constexpr int kSubjectTop = 3;
constexpr double kSubjectLimit = 190;
constexpr int kFirstLineTop = 22;
constexpr int kLineDistance = 17;

constexpr Rgb kHeadingColor = 0x3232FF;
constexpr Rgb kButtonBorder = 0x2F5568;
constexpr Rgb kButtonGround = 0xFFFFFF;
constexpr Rgb kButtonPicture = 0x2F5568;
constexpr Rgb kPressedGround = 0x2F5568;
constexpr Rgb kPressedPicture = 0xFFFFFF;
constexpr Rgb kHighlight = 0xD6EDBA;

PaintedRow TextRow(int top, const QString& spoken) {
  return {.Rectangle = {kTextLeft, top, kTextWidth, kTextHeight},
          .SpokenName = spoken,
          .Role = PaintedRole::Text};
}

// Shortened, it ends somewhat beyond the limit, still before the buttons.
PaintedRow LayOutSubject(const QString& subject, const TextWidth& width) {
  PaintedRow row = TextRow(kSubjectTop, subject);
  row.Items.push_back({.Rectangle = row.Rectangle,
                       .Text = OnOneLine(ShortenText(subject, kSubjectLimit, width)),
                       .Weight = TextWeight::Bold,
                       .Color = kHeadingColor});
  return row;
}

PaintedRow LayOutLine(int index, const QString& line, const TextWidth& width) {
  PaintedRow row = TextRow(kFirstLineTop + index * kLineDistance, line);
  row.Items.push_back({.Rectangle = row.Rectangle, .Text = ElideText(line, kTextWidth, width)});
  return row;
}

PaintedRow LayOutButton(PreviewButton button, const PreviewLook& look) {
  const QRect place = PlaceOf(button);
  const bool isPressed = look.Pressed == button;
  const bool isCurrent = look.Current == button;
  PaintedRow row{.Rectangle = place,
                 .Key = CommandOf(button),
                 .SpokenName = NameOf(button).toString(),
                 .Role = PaintedRole::Button};
  row.State.setFlag(PaintedStateFlag::Current, isCurrent);
  const Rgb ground = isPressed ? kPressedGround : isCurrent ? kHighlight : kButtonGround;
  row.Items.push_back({.Rectangle = place, .Fill = kButtonBorder});
  row.Items.push_back({.Rectangle = place.adjusted(1, 1, -1, -1), .Fill = ground});
  row.Items.push_back({.Rectangle = place,
                       .Color = isPressed ? kPressedPicture : kButtonPicture,
                       .Picture = &PictureOf(button)});
  return row;
}

}  // namespace

std::vector<PaintedRow> LayOutAppointmentPreview(const AppointmentPreview& preview,
                                                 const PreviewLook& look,
                                                 const PreviewFonts& fonts) {
  std::vector<PaintedRow> rows{LayOutSubject(preview.Subject, fonts.Heading)};
  for (int i = 0; i < preview.Lines.size(); ++i)
    rows.push_back(LayOutLine(i, preview.Lines[i], fonts.Body));
  for (const PreviewButton button : kPreviewButtons) rows.push_back(LayOutButton(button, look));
  return rows;
}

}  // namespace quill
