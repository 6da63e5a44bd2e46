#include "appointments/AppointmentPreviewLayout.h"

#include <gtest/gtest.h>

#include "support/PaintedItems.h"

namespace quill {
namespace {

using test::FillsOf;
using test::PicturesOf;
using test::TenEach;
using test::TextsOf;

constexpr int kButtonsLeft = 216;

double FiveEach(QStringView text) { return 5.0 * static_cast<double>(text.size()); }

const AppointmentPreview kThreeLines = {
    QStringLiteral("(Kim) tea"),
    {QStringLiteral("Everyday"), QStringLiteral("from 2004.09.15"), QStringLiteral("at AM 9:30")}};

std::vector<PaintedRow> LayOut(const AppointmentPreview& preview, const PreviewLook& look = {}) {
  return LayOutAppointmentPreview(preview, look, {TenEach, FiveEach});
}

const PaintedRow& ButtonOf(const std::vector<PaintedRow>& rows, int command) {
  for (const PaintedRow& row : rows)
    if (row.Key == command) return row;
  return rows.front();
}

TEST(AppointmentPreviewLayout, TextsStandBelowEachOtherAboveTheNote) {
  const auto rows = LayOut(kThreeLines);
  ASSERT_EQ(rows.size(), 6U);
  int bottom = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(rows[i].Role, PaintedRole::Text);
    EXPECT_EQ(rows[i].Key, 0);
    EXPECT_GT(rows[i].Rectangle.top(), bottom);
    EXPECT_EQ(rows[i].Rectangle.height(), 16);
    EXPECT_EQ(rows[i].Rectangle.left(), 3);
    EXPECT_LT(rows[i].Rectangle.right(), 212);
    ASSERT_EQ(TextsOf(rows[i]).size(), 1U);
    EXPECT_EQ(TextsOf(rows[i])[0].Rectangle, rows[i].Rectangle);
    bottom = rows[i].Rectangle.bottom();
  }
  EXPECT_LT(bottom, kPreviewNoteTop);
}

TEST(AppointmentPreviewLayout, TheSubjectIsBoldAndTheLinesAreNot) {
  const auto rows = LayOut(kThreeLines);
  EXPECT_EQ(TextsOf(rows[0])[0].Text, kThreeLines.Subject);
  EXPECT_EQ(TextsOf(rows[0])[0].Weight, TextWeight::Bold);
  EXPECT_NE(TextsOf(rows[0])[0].Color, TextsOf(rows[1])[0].Color);
  for (std::size_t i = 1; i < 4; ++i) {
    EXPECT_EQ(TextsOf(rows[i])[0].Text, kThreeLines.Lines[static_cast<int>(i) - 1]);
    EXPECT_EQ(TextsOf(rows[i])[0].Weight, TextWeight::Normal);
  }
}

TEST(AppointmentPreviewLayout, ASubjectAbove190PixelsIsShortenedInTheHeadingsFont) {
  const QString fits = QString(19, u'a');
  EXPECT_EQ(TextsOf(LayOut({fits, {}})[0])[0].Text, fits);
  const auto rows = LayOut({QString(20, u'a'), {}});
  EXPECT_EQ(TextsOf(rows[0])[0].Text, fits + QStringLiteral("..."));
  EXPECT_EQ(rows[0].SpokenName, QString(20, u'a'));
}

TEST(AppointmentPreviewLayout, ASubjectOfSeveralLinesIsPaintedOnOne) {
  const auto rows = LayOut({QStringLiteral("a\r\nb"), {}});
  EXPECT_EQ(TextsOf(rows[0])[0].Text, QStringLiteral("a  b"));
}

TEST(AppointmentPreviewLayout, ALongRecurrenceTakesTwoLinesAndAllStillStandsAboveTheNote) {
  const QString days = QStringLiteral("onSun.,Mon.,Tue.,Wed.,Thu.,Fri.,Sat.");
  AppointmentPreview preview = kThreeLines;
  preview.Lines[0] = QStringLiteral("Every 12 week(s) ") + days;
  const auto rows = LayOut(preview);
  const auto texts = TextsOf(rows[1]);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Every 12 week(s)"));
  EXPECT_EQ(texts[1].Text, days);
  EXPECT_EQ(rows[1].SpokenName, preview.Lines[0]);
  EXPECT_EQ(texts[0].Rectangle.height(), 16) << "room for the feet of letters";
  EXPECT_EQ(texts[1].Rectangle.top() - texts[0].Rectangle.top(), 13);
  EXPECT_GT(rows[2].Rectangle.top(), rows[1].Rectangle.bottom());
  EXPECT_GT(rows[3].Rectangle.top(), rows[2].Rectangle.bottom());
  EXPECT_LT(rows[3].Rectangle.bottom(), kPreviewNoteTop);
}

TEST(AppointmentPreviewLayout, ALongLineEndsWithDotsBeforeTheButtons) {
  const QString fits = QString(41, u'a');  // 205 of 209 pixels
  EXPECT_EQ(TextsOf(LayOut({{}, {fits}})[1])[0].Text, fits);
  const auto rows = LayOut({{}, {QString(42, u'a')}});
  EXPECT_EQ(TextsOf(rows[1])[0].Text, QString(38, u'a') + QStringLiteral("..."));
  EXPECT_LT(rows[1].Rectangle.right(), kButtonsLeft);
  EXPECT_EQ(rows[1].SpokenName, QString(42, u'a'));
}

TEST(AppointmentPreviewLayout, TheButtonsComeLastWithTheirPicturesAndNames) {
  const auto rows = LayOut(kThreeLines);
  for (const PreviewButton button : kPreviewButtons) {
    const PaintedRow& row = rows[4 + static_cast<std::size_t>(button)];
    EXPECT_EQ(row.Key, CommandOf(button));
    EXPECT_EQ(row.Rectangle, PlaceOf(button));
    EXPECT_EQ(row.SpokenName, NameOf(button));
    EXPECT_EQ(row.Role, PaintedRole::Button);
    ASSERT_EQ(PicturesOf(row).size(), 1U);
    EXPECT_EQ(PicturesOf(row)[0].Picture, &PictureOf(button));
    EXPECT_EQ(PicturesOf(row)[0].Rectangle, row.Rectangle);
    EXPECT_FALSE(row.State.testFlag(PaintedStateFlag::Current));
  }
}

TEST(AppointmentPreviewLayout, APressedButtonChangesItsColours) {
  const auto rows = LayOut(kThreeLines, {.Pressed = PreviewButton::Delete});
  const PaintedRow& pressed = ButtonOf(rows, CommandOf(PreviewButton::Delete));
  const PaintedRow& normal = ButtonOf(rows, CommandOf(PreviewButton::Modify));
  EXPECT_EQ(FillsOf(pressed)[0].Rectangle, pressed.Rectangle);
  EXPECT_EQ(FillsOf(pressed)[1].Rectangle, pressed.Rectangle.adjusted(1, 1, -1, -1));
  EXPECT_EQ(FillsOf(pressed)[1].Fill, PicturesOf(normal)[0].Color);
  EXPECT_EQ(PicturesOf(pressed)[0].Color, FillsOf(normal)[1].Fill);
  EXPECT_NE(FillsOf(normal)[0].Fill, FillsOf(normal)[1].Fill);
}

TEST(AppointmentPreviewLayout, TheButtonThatKeysActOnIsHighlighted) {
  const auto rows = LayOut(kThreeLines, {.Current = PreviewButton::Modify});
  const PaintedRow& current = ButtonOf(rows, CommandOf(PreviewButton::Modify));
  const PaintedRow& other = ButtonOf(rows, CommandOf(PreviewButton::Delete));
  EXPECT_TRUE(current.State.testFlag(PaintedStateFlag::Current));
  EXPECT_FALSE(other.State.testFlag(PaintedStateFlag::Current));
  EXPECT_NE(FillsOf(current)[1].Fill, FillsOf(other)[1].Fill);
  EXPECT_EQ(PicturesOf(current)[0].Color, PicturesOf(other)[0].Color);
}

TEST(AppointmentPreviewLayout, PressedTheCurrentButtonLooksPressed) {
  const PreviewLook both{PreviewButton::Modify, PreviewButton::Modify};
  const auto pressed = LayOut(kThreeLines, {.Pressed = PreviewButton::Modify});
  const int modify = CommandOf(PreviewButton::Modify);
  EXPECT_EQ(FillsOf(ButtonOf(LayOut(kThreeLines, both), modify))[1].Fill,
            FillsOf(ButtonOf(pressed, modify))[1].Fill);
}

}  // namespace
}  // namespace quill
