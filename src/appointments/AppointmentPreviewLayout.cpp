#include "appointments/AppointmentPreviewLayout.h"

#include <utility>

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
constexpr int kCloseDistance = 13;  // of four lines

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

// Each line of a text as it is painted: the first text of three may take two lines.
QStringList PaintedLines(const QStringList& texts, int index, const TextWidth& width) {
  const QString& text = texts[index];
  QStringList lines = WrapLines(text, kTextWidth, width);
  if (index > 0 || texts.size() < 3 || lines.size() < 2)
    return {ElideText(text, kTextWidth, width)};
  const QString rest = text.sliced(lines[0].size()).trimmed();
  return {lines[0], ElideText(rest, kTextWidth, width)};
}

PaintedRow LayOutText(int top, int distance, const QString& text, const QStringList& lines) {
  PaintedRow row = TextRow(top, text);
  row.Rectangle.setHeight(distance * static_cast<int>(lines.size()) - 1);
  // Lines that are close keep room for their letters' feet.
  const int above = (kTextHeight - (distance - 1)) / 2;
  for (const QString& line : lines) {
    row.Items.push_back(
        {.Rectangle = {kTextLeft, top - above, kTextWidth, kTextHeight}, .Text = line});
    top += distance;
  }
  return row;
}

// Below each other, as far apart as their number lets them be.
std::vector<PaintedRow> LayOutTexts(const QStringList& texts, const TextWidth& width) {
  std::vector<PaintedRow> rows;
  int top = kFirstLineTop;
  int distance = kLineDistance;
  for (int i = 0; i < texts.size(); ++i) {
    const QStringList lines = PaintedLines(texts, i, width);
    if (lines.size() > 1) distance = kCloseDistance;
    rows.push_back(LayOutText(top, distance, texts[i], lines));
    top += distance * static_cast<int>(lines.size());
  }
  return rows;
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
  for (PaintedRow& text : LayOutTexts(preview.Lines, fonts.Body)) rows.push_back(std::move(text));
  for (const PreviewButton button : kPreviewButtons) rows.push_back(LayOutButton(button, look));
  return rows;
}

}  // namespace quill
