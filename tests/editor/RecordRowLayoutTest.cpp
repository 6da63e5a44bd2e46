#include "editor/RecordRowLayout.h"

#include <gtest/gtest.h>

#include "resources/SheetPictures.h"
#include "support/PaintedItems.h"

namespace quill {
namespace {

using test::FillsOf;
using test::PicturesOf;
using test::TenEach;
using test::TextsOf;

constexpr int kCategoriesIndex = 10;  // on the Basic page
constexpr int kBirthdayIndex = 7;     // on the Detail page

std::vector<PaintedRow> LayOutBasic(const ContactRecord& record, const RecordRowView& view = {}) {
  return LayOutRecordRows(RowsFrom(record, RowSet::Basic), view, TenEach);
}

// The row of "Job title" with this value.
PaintedRow LayOutText(const QString& value) {
  ContactRecord record;
  record[ContactField::JobTitle] = value;
  return LayOutBasic(record)[1];
}

TEST(RecordRowLayout, ElevenRowsOfNineteenPixelsAreShownAndTheClosingOneIsNot) {
  const std::vector<PaintedRow> rows = LayOutBasic({});
  ASSERT_EQ(rows.size(), 11U);
  for (int row = 0; row < 11; ++row) {
    EXPECT_EQ(rows[row].Rectangle, QRect(0, 19 * row, 225, 19));
    EXPECT_EQ(rows[row].Key, row);
    EXPECT_EQ(rows[row].Role, PaintedRole::ListItem);
  }
}

TEST(RecordRowLayout, RowsMoveUpByTheRowsScrolledOut) {
  const std::vector<PaintedRow> rows = LayOutBasic({}, {.Top = 3});
  EXPECT_EQ(rows[0].Rectangle.top(), -57);
  EXPECT_EQ(rows[3].Rectangle.top(), 0);
  EXPECT_EQ(rows[3].Key, 3);
  for (const PaintedItem& item : rows[kCategoriesIndex].Items)
    EXPECT_TRUE(QRect(0, 133, 225, 19).contains(item.Rectangle));
}

TEST(RecordRowLayout, ALabelStandsRightAlignedInItsColumn) {
  const PaintedItem label = TextsOf(LayOutText({}))[0];
  EXPECT_EQ(label.Text, QStringLiteral("Job title"));
  EXPECT_EQ(label.Rectangle, QRect(3, 19, 69, 19));
  EXPECT_EQ(label.Alignment, TextAlign::Right);
  EXPECT_EQ(label.Color, 0x3232FFU);
}

TEST(RecordRowLayout, ADottedLineRunsUnderTheValueTwoPixelsAboveTheBottom) {
  for (const PaintedRow& row : LayOutBasic({})) {
    const std::vector<PaintedItem> fills = FillsOf(row);
    ASSERT_EQ(fills.size(), 1U);
    EXPECT_EQ(fills[0].Rectangle, QRect(77, row.Rectangle.top() + 17, 148, 1));
    EXPECT_EQ(fills[0].Pattern, FillPattern::Dots);
  }
}

TEST(RecordRowLayout, AValueStandsLeftAlignedFromEighty) {
  const PaintedItem value = TextsOf(LayOutText(QStringLiteral("Painter")))[1];
  EXPECT_EQ(value.Text, QStringLiteral("Painter"));
  EXPECT_EQ(value.Rectangle, QRect(80, 19, 145, 19));
  EXPECT_EQ(value.Alignment, TextAlign::Left);
  EXPECT_EQ(value.Color, 0x000000U);
  EXPECT_TRUE(PicturesOf(LayOutText(QStringLiteral("Painter"))).empty());
}

// Of the column's 145 pixels 126 hold text: twelve letters and the thirteenth that crosses them.
TEST(RecordRowLayout, AValueIsShortenedToItsColumnLessNineteen) {
  EXPECT_EQ(TextsOf(LayOutText(QStringLiteral("abcdefghijkl")))[1].Text,
            QStringLiteral("abcdefghijkl"));
  EXPECT_EQ(TextsOf(LayOutText(QStringLiteral("abcdefghijklmno")))[1].Text,
            QStringLiteral("abcdefghijklm..."));
}

TEST(RecordRowLayout, CategoriesEndWithTheirDotsOnePixelBeforeOtherTexts) {
  const TextWidth byLength = [](QStringView text) { return text.size() == 4 ? 126.0 : 1.0; };
  ContactRecord record;
  record[ContactField::JobTitle] = QStringLiteral("fits");
  record[ContactField::Categories] = QStringLiteral("a,bc");
  const auto rows = LayOutRecordRows(RowsFrom(record, RowSet::Basic), {}, byLength);
  EXPECT_EQ(TextsOf(rows[1])[1].Text, QStringLiteral("fits"));
  EXPECT_TRUE(TextsOf(rows[kCategoriesIndex])[1].Text.endsWith(QStringLiteral("...")));
}

TEST(RecordRowLayout, CategoriesHaveTheirPictureAtTheRightEnd) {
  ContactRecord record;
  record[ContactField::Categories] = QStringLiteral("Friends");
  const PaintedRow row = LayOutBasic(record)[kCategoriesIndex];
  const std::vector<PaintedItem> pictures = PicturesOf(row);
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures[0].Picture, &resources::kTagPicture);
  EXPECT_EQ(pictures[0].Rectangle, QRect(209, 192, 14, 14));
  EXPECT_EQ(TextsOf(row)[1].Text, QStringLiteral("Friends"));
  EXPECT_EQ(TextsOf(row)[1].Rectangle, QRect(80, 190, 127, 19));
}

TEST(RecordRowLayout, DatesHaveASmallerPictureAndAreNotShortened) {
  std::vector<RecordRow> rows = RowsFrom({}, RowSet::Detail);
  rows[kBirthdayIndex].Value = QString(30, u'0');
  for (const RowKind kind : {RowKind::Date, RowKind::DropDown}) {
    rows[kBirthdayIndex].Kind = kind;
    const PaintedRow row = LayOutRecordRows(rows, {}, TenEach)[kBirthdayIndex];
    const std::vector<PaintedItem> pictures = PicturesOf(row);
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures[0].Picture, &resources::kPickPicture);
    EXPECT_EQ(pictures[0].Rectangle, QRect(213, 137, 10, 10));
    EXPECT_EQ(TextsOf(row)[1].Text, QString(30, u'0'));
    EXPECT_EQ(TextsOf(row)[1].Rectangle, QRect(80, 133, 131, 19));
  }
}

TEST(RecordRowLayout, AStreetOfSeveralLinesStandsOnOne) {
  ContactRecord record;
  record[ContactField::BusinessAddressStreet] = QStringLiteral("Hill\n2 Road");
  const PaintedRow row = LayOutBasic(record)[8];
  EXPECT_EQ(TextsOf(row)[1].Text, QStringLiteral("Hill 2 Road"));
  EXPECT_EQ(row.SpokenName, QStringLiteral("Work addr, Hill 2 Road"));
}

TEST(RecordRowLayout, ARowIsSpokenWithItsWholeValue) {
  EXPECT_EQ(LayOutText({}).SpokenName, QStringLiteral("Job title"));
  EXPECT_EQ(LayOutText(QString(40, u'x')).SpokenName,
            QStringLiteral("Job title, ") + QString(40, u'x'));
}

TEST(RecordRowLayout, TheEditedRowIsTheCurrentOne) {
  const std::vector<PaintedRow> rows = LayOutBasic({}, {.Current = 4});
  for (int row = 0; row < 11; ++row) {
    EXPECT_TRUE(rows[row].State.testFlag(PaintedStateFlag::Selectable));
    EXPECT_EQ(rows[row].State.testFlag(PaintedStateFlag::Current), row == 4);
  }
}

TEST(RecordRowLayout, ARowIsFoundByItsHeightAndByWhatIsScrolledOut) {
  EXPECT_EQ(RecordRowAt(0, 0), 0);
  EXPECT_EQ(RecordRowAt(18, 0), 0);
  EXPECT_EQ(RecordRowAt(19, 0), 1);
  EXPECT_EQ(RecordRowAt(19, 3), 4);
  EXPECT_EQ(RecordRowAt(208, 0), 10);
}

TEST(RecordRowLayout, OnTheClosingRowBelowAndAboveTheListThereIsNoRow) {
  EXPECT_EQ(RecordRowAt(209, 0), std::nullopt);
  EXPECT_EQ(RecordRowAt(247, 0), std::nullopt);
  EXPECT_EQ(RecordRowAt(152, 3), std::nullopt);
  EXPECT_EQ(RecordRowAt(151, 3), 10);
  EXPECT_EQ(RecordRowAt(-1, 0), std::nullopt);
  EXPECT_EQ(RecordRowAt(-1, 3), std::nullopt);
}

TEST(RecordRowLayout, ATapOnTheLabelStartsNoEdit) {
  EXPECT_EQ(RecordRowToEdit({79, 20}, 0), std::nullopt);
  EXPECT_EQ(RecordRowToEdit({80, 20}, 0), 1);
  EXPECT_EQ(RecordRowToEdit({224, 20}, 2), 3);
  EXPECT_EQ(RecordRowToEdit({100, 230}, 0), std::nullopt);
}

TEST(RecordRowLayout, AnEditCoversItsValueAndLeavesTheLine) {
  EXPECT_EQ(RecordEditArea(0, 0), QRect(80, 0, 145, 17));
  EXPECT_EQ(RecordEditArea(5, 3), QRect(80, 38, 145, 17));
}

}  // namespace
}  // namespace quill
