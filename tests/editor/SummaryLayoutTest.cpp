#include "editor/SummaryLayout.h"

#include <gtest/gtest.h>

#include "support/PaintedItems.h"

namespace quill {
namespace {

using test::FillsOf;
using test::TenEach;
using test::TextsOf;

const SummaryLine kCell{u"Cell:", QStringLiteral("010-1")};
const SummaryLine kEmail{u"Email:", QStringLiteral("kim@example.com, or another")};
const SummaryLine kWorkAddress{u"W.Adr:", QStringLiteral("1 Main St, Columbus, OH, 43004, USA"), 4};

TEST(SummaryLayout, AnAddressCountsFourLines) {
  EXPECT_EQ(CardLineCount({}), 0);
  EXPECT_EQ(CardLineCount({kCell}), 1);
  EXPECT_EQ(CardLineCount({kCell, kEmail, kWorkAddress}), 6);
}

TEST(SummaryLayout, TheHeightFollowsTheLinesAndIsNeverLessThanOne) {
  EXPECT_EQ(CardHeight(0), 26);
  EXPECT_EQ(CardHeight(1), 26);
  EXPECT_EQ(CardHeight(9), 154);
}

struct PlaceCase {
  int Lines;
  int AnchorY;
  int ListTop;
  QRect Card;
};

class CardPlace : public testing::TestWithParam<PlaceCase> {};

TEST_P(CardPlace, FollowsTheRule) {
  const PlaceCase& rule = GetParam();
  EXPECT_EQ(PlaceCard(rule.Lines, rule.AnchorY, rule.ListTop), rule.Card);
}

INSTANTIATE_TEST_SUITE_P(
    Anchors, CardPlace,
    testing::Values(PlaceCase{1, 119, 71, {20, 195, 180, 26}},  // below
                    PlaceCase{1, 120, 71, {20, 160, 180, 26}},  // above
                    PlaceCase{0, 10, 51, {20, 66, 180, 26}},
                    PlaceCase{9, 119, 71, {20, 141, 180, 154}},  // pushed up: 295 is its end
                    PlaceCase{6, 110, 71, {20, 186, 180, 106}},  // ends at 292
                    PlaceCase{6, 113, 71, {20, 189, 180, 106}},  // ends at 295
                    PlaceCase{6, 114, 71, {20, 189, 180, 106}},
                    PlaceCase{9, 120, 71, {20, 50, 180, 154}},  // pushed down: 50 is its top
                    PlaceCase{9, 138, 71, {20, 50, 180, 154}},
                    PlaceCase{9, 139, 71, {20, 51, 180, 154}}));

TEST(SummaryLayout, TheGroundFillsTheCard) {
  const std::vector<PaintedRow> rows = LayOutCard({kCell, kWorkAddress}, TenEach);
  const std::vector<PaintedItem> fills = FillsOf(rows[0]);
  ASSERT_EQ(fills.size(), 1U);
  EXPECT_EQ(fills[0].Rectangle, QRect(0, 0, 180, 90));
  EXPECT_EQ(fills[0].Fill, kCardBackground);
}

TEST(SummaryLayout, EachLineHasItsLabelAndItsText) {
  const std::vector<PaintedRow> rows = LayOutCard({kCell, kEmail}, TenEach);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("Cell: 010-1"));
  EXPECT_EQ(rows[1].Rectangle, QRect(5, 5, 170, 16));
  const std::vector<PaintedItem> texts = TextsOf(rows[2]);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Email:"));
  EXPECT_EQ(texts[0].Rectangle, QRect(5, 21, 40, 16));
  EXPECT_EQ(texts[0].Alignment, TextAlign::Right);
  EXPECT_EQ(texts[1].Text, QStringLiteral("kim@examp..."));
  EXPECT_EQ(texts[1].Rectangle, QRect(50, 21, 125, 16));
  EXPECT_EQ(texts[1].Alignment, TextAlign::Left);
}

TEST(SummaryLayout, AllTextsHaveTheCardsColour) {
  for (const auto& lines : {std::vector<SummaryLine>{}, {kCell, kWorkAddress}})
    for (const PaintedRow& row : LayOutCard(lines, TenEach))
      for (const PaintedItem& text : TextsOf(row)) EXPECT_EQ(text.Color, 0x009664U);
}

TEST(SummaryLayout, AnAddressIsWrappedInFourLinesAndNoMore) {
  const std::vector<PaintedRow> rows = LayOutCard({kCell, kWorkAddress}, TenEach);
  EXPECT_EQ(rows[2].Rectangle, QRect(5, 21, 170, 64));
  const std::vector<PaintedItem> texts = TextsOf(rows[2]);
  ASSERT_EQ(texts.size(), 5U);
  EXPECT_EQ(texts[0].Rectangle, QRect(5, 21, 40, 16));
  const QStringList lines = {QStringLiteral("1 Main St,"), QStringLiteral("Columbus,"),
                             QStringLiteral("OH, 43004,"), QStringLiteral("USA")};
  for (int line = 0; line < 4; ++line) {
    EXPECT_EQ(texts[line + 1].Text, lines[line]);
    EXPECT_EQ(texts[line + 1].Rectangle, QRect(50, 21 + 16 * line, 125, 16));
  }
  const SummaryLine longer{u"H.Adr:", kWorkAddress.Text + QStringLiteral(" and the moon"), 4};
  EXPECT_EQ(TextsOf(LayOutCard({longer}, TenEach)[1]).size(), 5U);
}

TEST(SummaryLayout, WithNothingToShowItSaysSo) {
  const std::vector<PaintedRow> rows = LayOutCard({}, TenEach);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].Rectangle, QRect(0, 0, 180, 26));
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("(No contact information)"));
  const std::vector<PaintedItem> texts = TextsOf(rows[1]);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("(No contact information)"));
  EXPECT_EQ(texts[0].Rectangle, QRect(5, 5, 170, 16));
  EXPECT_EQ(texts[0].Alignment, TextAlign::Centre);
}

TEST(SummaryLayout, ALongLineEndsWithDotsThatFit) {
  const auto rows = LayOutCard({{u"Cell:", QStringLiteral("010-1234-5678")}}, TenEach);
  EXPECT_EQ(TextsOf(rows[1])[1].Text, QStringLiteral("010-1234-..."));
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("Cell: 010-1234-5678"));
}

TEST(SummaryLayout, AnAddressOfMoreThanItsLinesEndsWithDots) {
  const QString address = QStringLiteral("one two, three four, five six, seven eight, nine ten");
  const auto texts = TextsOf(LayOutCard({{u"W.Adr:", address, 4}}, TenEach)[1]);
  ASSERT_EQ(texts.size(), 5U);
  EXPECT_EQ(texts[1].Text, QStringLiteral("one two,"));
  EXPECT_TRUE(texts[4].Text.endsWith(QStringLiteral("..."))) << texts[4].Text.toStdString();
}

}  // namespace
}  // namespace quill
