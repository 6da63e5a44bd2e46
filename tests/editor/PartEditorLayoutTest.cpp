#include "editor/PartEditorLayout.h"

#include <gtest/gtest.h>

#include "support/PaintedItems.h"

namespace quill {
namespace {

using test::FillsOf;
using test::TenEach;
using test::TextsOf;

std::vector<PaintedRow> LayOut(const ContactRecord& record, RowSet parts, int current = -1) {
  return LayOutParts(RowsFrom(record, parts), parts, current, TenEach);
}

std::vector<PaintedRow> LayOutStreet(const QString& street) {
  ContactRecord record;
  record[ContactField::HomeAddressStreet] = street;
  return LayOut(record, RowSet::HomeAddress);
}

TEST(PartEditorLayout, EditorsStandOnTheirPage) {
  EXPECT_EQ(PartEditorArea(RowSet::NameParts), QRect(20, 20, 200, 100));
  EXPECT_EQ(PartEditorArea(RowSet::WorkAddress), QRect(20, 30, 200, 131));
  EXPECT_EQ(PartEditorArea(RowSet::HomeAddress), QRect(20, 30, 200, 131));
}

TEST(PartEditorLayout, NamePartsAreRowsOfNineteenPixels) {
  const std::vector<PaintedRow> rows = LayOut({}, RowSet::NameParts);
  ASSERT_EQ(rows.size(), 5U);
  for (int row = 0; row < 5; ++row) {
    EXPECT_EQ(rows[row].Rectangle, QRect(0, 19 * row, 200, 19));
    EXPECT_EQ(rows[row].Key, row);
  }
}

TEST(PartEditorLayout, AnAddressBeginsWithAHigherRow) {
  for (const RowSet parts : {RowSet::WorkAddress, RowSet::HomeAddress}) {
    const std::vector<PaintedRow> rows = LayOut({}, parts);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0].Rectangle, QRect(0, 0, 200, 50));
    for (int row = 1; row < 5; ++row)
      EXPECT_EQ(rows[row].Rectangle, QRect(0, 50 + 19 * (row - 1), 200, 19));
  }
}

TEST(PartEditorLayout, TypingBeginsWithTheFirstNameAndTheStreet) {
  for (const auto& [parts, field] :
       {std::pair(RowSet::NameParts, ContactField::FirstName),
        std::pair(RowSet::WorkAddress, ContactField::BusinessAddressStreet),
        std::pair(RowSet::HomeAddress, ContactField::HomeAddressStreet)})
    EXPECT_EQ(FindRule(parts, PartTypedFirst(parts))->Field, field);
}

TEST(PartEditorLayout, OnlyTheFirstPartOfAnAddressIsAStreet) {
  EXPECT_TRUE(IsStreet(RowSet::WorkAddress, 0));
  EXPECT_TRUE(IsStreet(RowSet::HomeAddress, 0));
  EXPECT_FALSE(IsStreet(RowSet::HomeAddress, 1));
  EXPECT_FALSE(IsStreet(RowSet::NameParts, 0));
}

TEST(PartEditorLayout, ALabelAndAValueStandInTheirColumns) {
  ContactRecord record;
  record[ContactField::MiddleName] = QStringLiteral("M.");
  const std::vector<PaintedItem> texts = TextsOf(LayOut(record, RowSet::NameParts)[2]);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Middle"));
  EXPECT_EQ(texts[0].Rectangle, QRect(3, 38, 47, 19));
  EXPECT_EQ(texts[0].Alignment, TextAlign::Right);
  EXPECT_EQ(texts[0].Color, 0x3232FFU);
  EXPECT_EQ(texts[1].Text, QStringLiteral("M."));
  EXPECT_EQ(texts[1].Rectangle, QRect(55, 38, 140, 19));
}

TEST(PartEditorLayout, ALongPartIsShortened) {
  ContactRecord record;
  record[ContactField::LastName] = QString(20, u'x');
  EXPECT_EQ(TextsOf(LayOut(record, RowSet::NameParts)[3])[1].Text,
            QString(13, u'x') + QStringLiteral("..."));
}

TEST(PartEditorLayout, APartOfSeveralLinesStandsOnOne) {
  ContactRecord record;
  record[ContactField::MiddleName] = QStringLiteral("A\r\nB");
  EXPECT_EQ(TextsOf(LayOut(record, RowSet::NameParts)[2])[1].Text, QStringLiteral("A  B"));
}

TEST(PartEditorLayout, ADottedLineEndsEveryRow) {
  for (const RowSet parts : {RowSet::NameParts, RowSet::WorkAddress}) {
    for (const PaintedRow& row : LayOut({}, parts)) {
      const std::vector<PaintedItem> fills = FillsOf(row);
      ASSERT_EQ(fills.size(), 1U);
      EXPECT_EQ(fills[0].Rectangle, QRect(52, row.Rectangle.bottom(), 143, 1));
      EXPECT_EQ(fills[0].Pattern, FillPattern::Dots);
    }
  }
}

TEST(PartEditorLayout, AStreetShowsAsManyLinesAsItsRowHasRoomFor) {
  const PaintedRow row = LayOutStreet(QStringLiteral("one\r\ntwo\nthree\nfour"))[0];
  const std::vector<PaintedItem> texts = TextsOf(row);
  ASSERT_EQ(texts.size(), 4U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Street"));
  EXPECT_EQ(texts[0].Rectangle, QRect(3, 0, 47, 19));
  EXPECT_EQ(texts[1].Text, QStringLiteral("one"));
  EXPECT_EQ(texts[1].Rectangle, QRect(55, 1, 140, 16));
  EXPECT_EQ(texts[2].Rectangle, QRect(55, 17, 140, 16));
  EXPECT_EQ(texts[3].Text, QStringLiteral("three"));
  EXPECT_EQ(texts[3].Rectangle, QRect(55, 33, 140, 16));
  EXPECT_EQ(row.SpokenName, QStringLiteral("Street, one  two three four"));
}

TEST(PartEditorLayout, ALongStreetIsWrapped) {
  const auto texts = TextsOf(LayOutStreet(QStringLiteral("Hill House 2 Hill Road"))[0]);
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[1].Text, QStringLiteral("Hill House 2"));
  EXPECT_EQ(texts[2].Text, QStringLiteral("Hill Road"));
}

TEST(PartEditorLayout, OfALongStreetOnlyTheBeginningIsMeasured) {
  ContactRecord record;
  record[ContactField::HomeAddressStreet] = QString(100'000, u'a');
  qsizetype measured = 0;
  const auto rows = LayOutParts(RowsFrom(record, RowSet::HomeAddress), RowSet::HomeAddress, -1,
                                [&](QStringView text) {
                                  measured += text.size();
                                  return TenEach(text);
                                });
  EXPECT_EQ(TextsOf(rows[0]).size(), 4U);
  EXPECT_LE(measured, 20'000);
}

TEST(PartEditorLayout, TheEditedRowIsTheCurrentOne) {
  const std::vector<PaintedRow> rows = LayOut({}, RowSet::NameParts, 3);
  for (int row = 0; row < 5; ++row) {
    EXPECT_TRUE(rows[row].State.testFlag(PaintedStateFlag::Selectable));
    EXPECT_EQ(rows[row].State.testFlag(PaintedStateFlag::Current), row == 3);
  }
  EXPECT_EQ(rows[0].SpokenName, QStringLiteral("Title"));
}

TEST(PartEditorLayout, UnderTheFieldOfTheEditedPartNoValueIsPainted) {
  ContactRecord record;
  record[ContactField::HomeAddressStreet] = QStringLiteral("Mill Lane");
  record[ContactField::HomeAddressCity] = QStringLiteral("Seoul");
  const auto valuesPainted = [&](int current) {
    std::vector<std::size_t> counts;
    for (const PaintedRow& row : LayOut(record, RowSet::HomeAddress, current))
      counts.push_back(TextsOf(row).size() - 1);
    return counts;
  };
  EXPECT_EQ(valuesPainted(-1), (std::vector<std::size_t>{1, 1, 0, 0, 0}));
  EXPECT_EQ(valuesPainted(0), (std::vector<std::size_t>{0, 1, 0, 0, 0}));
  EXPECT_EQ(valuesPainted(1), (std::vector<std::size_t>{1, 0, 0, 0, 0}));
  EXPECT_EQ(LayOut(record, RowSet::HomeAddress, 0)[0].SpokenName,
            QStringLiteral("Street, Mill Lane"));
}

struct TapCase {
  RowSet Parts;
  QPoint Tap;
  std::optional<int> Row;
};

class PartTap : public testing::TestWithParam<TapCase> {};

TEST_P(PartTap, StartsTheEditOfItsRow) {
  EXPECT_EQ(PartToEdit(GetParam().Parts, GetParam().Tap), GetParam().Row);
}

constexpr auto kName = RowSet::NameParts;
constexpr auto kWork = RowSet::WorkAddress;
constexpr auto kHome = RowSet::HomeAddress;

INSTANTIATE_TEST_SUITE_P(Name, PartTap,
                         testing::Values(TapCase{kName, {54, 20}, std::nullopt},
                                         TapCase{kName, {55, 20}, 1}, TapCase{kName, {55, 0}, 0},
                                         TapCase{kName, {55, 18}, 0}, TapCase{kName, {199, 94}, 4},
                                         TapCase{kName, {55, 95}, std::nullopt},
                                         TapCase{kName, {55, -1}, std::nullopt}));

INSTANTIATE_TEST_SUITE_P(Address, PartTap,
                         testing::Values(TapCase{kWork, {54, 20}, std::nullopt},
                                         TapCase{kWork, {55, 0}, 0}, TapCase{kWork, {55, 49}, 0},
                                         TapCase{kHome, {55, 50}, 1}, TapCase{kHome, {55, 68}, 1},
                                         TapCase{kHome, {55, 69}, 2}, TapCase{kHome, {55, 125}, 4},
                                         TapCase{kHome, {55, 126}, std::nullopt},
                                         TapCase{kHome, {55, -1}, std::nullopt}));

TEST(PartEditorLayout, AnEditCoversItsValue) {
  EXPECT_EQ(PartEditArea(kName, 0), QRect(55, 1, 140, 17));
  EXPECT_EQ(PartEditArea(kName, 4), QRect(55, 77, 140, 17));
  EXPECT_EQ(PartEditArea(kWork, 0), QRect(55, 1, 140, 46));
  for (int row = 1; row < 5; ++row)
    EXPECT_EQ(PartEditArea(kHome, row), QRect(55, 19 * row + 32, 140, 17));
}

}  // namespace
}  // namespace quill
