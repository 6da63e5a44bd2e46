#include "list/ListLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "list/RowIcons.h"

namespace quill {
namespace {

double TenEach(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

// A page of this many rows with the Oids 101, 102, ...
ListState Page(int rows) {
  ListState list;
  list.Total = rows;
  list.RowsShown = std::min(rows, list.RowsPerPage);
  for (int n = 0; n < list.RowsShown; ++n) {
    list.Rows[n] = {.Name = QStringLiteral("N%1").arg(n),
                    .Company = QStringLiteral("C%1").arg(n),
                    .Text = QStringLiteral("T%1").arg(n),
                    .Icon = RowIconKind::None,
                    .Oid = 101 + n,
                    .Position = n};
  }
  return list;
}

std::vector<PaintedRow> LayOut(ListState list, std::vector<int> selected = {}) {
  list.SelectedKeys = std::move(selected);
  return LayOutList(list, {}, TenEach);
}

QStringList MemoNames(int count) {
  QStringList names;
  for (int n = 0; n < count; ++n) names.append(QStringLiteral("Memo %1").arg(n));
  return names;
}

// A list of this many memos from the top one.
ListState MemoPage(int total, int top = 0) {
  ListState list;
  list.Mode = ViewMode::ByMemo;
  list.Total = total;
  list.Top = top;
  return list;
}

std::vector<PaintedItem> TextsOf(const PaintedRow& row) {
  std::vector<PaintedItem> texts;
  for (const PaintedItem& item : row.Items)
    if (!item.Text.isEmpty()) texts.push_back(item);
  return texts;
}

// The colours that fill a rectangle of the row.
std::vector<Rgb> FillsOf(const PaintedRow& row, QRect rectangle) {
  std::vector<Rgb> fills;
  for (const PaintedItem& item : row.Items)
    if (item.Fill && item.Rectangle == rectangle) fills.push_back(*item.Fill);
  return fills;
}

TEST(ListLayout, RowsAreSixteenPixelsHighAndAsWideAsTheList) {
  const std::vector<PaintedRow> rows = LayOut(Page(14));
  ASSERT_EQ(rows.size(), 14U);
  for (int n = 0; n < 14; ++n) {
    EXPECT_EQ(rows[n].Rectangle, QRect(0, 16 * n, 225, 16));
    EXPECT_EQ(rows[n].Key, 101 + n);
    EXPECT_EQ(rows[n].Role, PaintedRole::ListItem);
  }
}

TEST(ListLayout, ByNameTheColumnsAreNameAndSecondText) {
  const std::vector<PaintedItem> texts = TextsOf(LayOut(Page(3))[2]);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("N2"));
  EXPECT_EQ(texts[0].Rectangle, QRect(5, 32, 80, 16));
  EXPECT_EQ(texts[1].Text, QStringLiteral("T2"));
  EXPECT_EQ(texts[1].Rectangle, QRect(85, 32, 110, 16));
  for (const PaintedItem& text : texts) {
    EXPECT_EQ(text.Color, 0x000000U);
    EXPECT_EQ(text.Alignment, TextAlign::Left);
  }
}

TEST(ListLayout, ByCompanyTheColumnsAreCompanyAndName) {
  ListState list = Page(1);
  list.Mode = ViewMode::ByCompany;
  const std::vector<PaintedItem> texts = TextsOf(LayOut(list)[0]);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("C0"));
  EXPECT_EQ(texts[1].Text, QStringLiteral("N0"));
}

TEST(ListLayout, ByCompanyAContactWithoutOneStandsUnderNone) {
  ListState list = Page(1);
  list.Mode = ViewMode::ByCompany;
  list.Rows[0].Company.clear();
  EXPECT_EQ(TextsOf(LayOut(list)[0])[0].Text, QStringLiteral("<None>"));
}

TEST(ListLayout, TheFirstColumnIsShortenedToSixtyPixelsAndTheSecondToItsOwnWidth) {
  ListState list = Page(1);
  list.Rows[0].Name = QStringLiteral("Kimberley");
  list.Rows[0].Text = QStringLiteral("010-1234-56");
  const std::vector<PaintedItem> texts = TextsOf(LayOut(list)[0]);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Kimber..."));
  EXPECT_EQ(texts[1].Text, QStringLiteral("010-1234-56"));
}

TEST(ListLayout, ANameOfExactlySixtyPixelsStaysWhole) {
  ListState list = Page(1);
  list.Rows[0].Name = QStringLiteral("Kimber");
  EXPECT_EQ(TextsOf(LayOut(list)[0])[0].Text, QStringLiteral("Kimber"));
}

TEST(ListLayout, EveryRowHasItsSeparatorAlongTheTopAboveAllElse) {
  const std::vector<PaintedRow> rows = LayOut(Page(3), {102});
  for (int n = 0; n < 3; ++n) {
    const PaintedItem& last = rows[n].Items.back();
    EXPECT_EQ(last.Rectangle, QRect(0, 16 * n, 225, 1));
    EXPECT_EQ(last.Fill, Rgb{0x999999});
  }
}

TEST(ListLayout, AShortPageEndsWithOneMoreSeparatorThatIsNoContact) {
  const std::vector<PaintedRow> rows = LayOut(Page(3));
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[3].Role, PaintedRole::Separator);
  EXPECT_EQ(rows[3].Key, 0);
  EXPECT_FALSE(rows[3].State & PaintedStateFlag::Selectable);
  EXPECT_EQ(FillsOf(rows[3], QRect(0, 48, 225, 1)), std::vector<Rgb>{0x999999});
  EXPECT_TRUE(TextsOf(rows[3]).empty());
}

TEST(ListLayout, SelectedRowsAreFilledBeforeTheirTextsAndSaySo) {
  const std::vector<PaintedRow> rows = LayOut(Page(14), {103, 101, 999});
  for (int n = 0; n < 14; ++n) {
    const bool selected = n == 0 || n == 2;
    EXPECT_EQ(rows[n].State.testFlag(PaintedStateFlag::Selected), selected) << n;
    EXPECT_TRUE(rows[n].State.testFlag(PaintedStateFlag::Selectable)) << n;
    EXPECT_EQ(rows[n].Items.front().Fill == Rgb{0xD6EDBA}, selected) << n;
    EXPECT_EQ(FillsOf(rows[n], QRect(0, 16 * n, 225, 16)).size(), selected ? 1U : 0U) << n;
  }
}

TEST(ListLayout, TheCurrentRowSaysSo) {
  ListState list = Page(14);
  list.CurrentRow = 2;
  const std::vector<PaintedRow> rows = LayOut(list);
  for (int n = 0; n < 14; ++n)
    EXPECT_EQ(rows[n].State.testFlag(PaintedStateFlag::Current), n == 2) << n;
}

TEST(ListLayout, RowsAreSpokenWholeHoweverShortTheyArePainted) {
  ListState list = Page(2);
  list.Rows[0].Name = QStringLiteral("Kimberley");
  list.Rows[1].Text.clear();
  const std::vector<PaintedRow> rows = LayOut(list);
  EXPECT_EQ(rows[0].SpokenName, QStringLiteral("Kimberley, T0"));
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("N1"));
  list.Mode = ViewMode::ByCompany;
  EXPECT_EQ(LayOut(list)[1].SpokenName, QStringLiteral("C1, N1"));
}

TEST(ListLayout, AnEmptyStoreShowsHowToAddPeople) {
  const std::vector<PaintedRow> rows = LayOut(ListState());
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].Role, PaintedRole::Text);
  EXPECT_EQ(rows[0].Key, 0);
  EXPECT_FALSE(rows[0].State & PaintedStateFlag::Selectable);
  const std::vector<PaintedItem> texts = TextsOf(rows[0]);
  ASSERT_EQ(texts.size(), 3U);
  QStringList lines;
  for (std::size_t n = 0; n < 3; ++n) {
    lines.append(texts[n].Text);
    EXPECT_TRUE(QRect(0, 16 * static_cast<int>(n), 225, 16).contains(texts[n].Rectangle)) << n;
    EXPECT_TRUE(rows[0].Rectangle.contains(texts[n].Rectangle)) << n;
  }
  EXPECT_EQ(rows[0].SpokenName, lines.join(u' '));
  for (const char* way : {"New", "Import...", "drop vCard files"})
    EXPECT_TRUE(rows[0].SpokenName.contains(QLatin1String(way))) << way;
}

TEST(ListLayout, AListWithoutItemsSaysWhatItLooksFor) {
  ListState list;
  const auto said = [&list] { return LayOut(list).at(0).SpokenName; };
  list.Restriction = QStringLiteral(R"([FileAs] >= "x")");
  EXPECT_EQ(said(), QStringLiteral("No contacts found"));
  list.Mode = ViewMode::ByCompany;
  EXPECT_EQ(said(), QStringLiteral("No contacts found"));
  list = ListState();
  list.Mode = ViewMode::ByMemo;
  EXPECT_EQ(said(), QStringLiteral("Write a memo: \"New\""));
  list.Filter = FilterKind::Range;
  EXPECT_EQ(said(), QStringLiteral("No memos found"));
}

TEST(ListLayout, TheIconStandsAtTheRowsRightEndTwoPixelsBelowItsTop) {
  ListState list = Page(3);
  list.Rows[2].Icon = RowIconKind::BusinessFax;
  const std::vector<PaintedRow> rows = LayOut(list);
  const auto isPicture = [](const PaintedItem& item) { return item.Picture != nullptr; };
  EXPECT_TRUE(std::ranges::none_of(rows[1].Items, isPicture));
  const auto icon = std::ranges::find_if(rows[2].Items, isPicture);
  ASSERT_NE(icon, rows[2].Items.end());
  EXPECT_EQ(icon->Picture, RowPicture(RowIconKind::BusinessFax));
  EXPECT_EQ(icon->Rectangle, QRect(208, 34, 14, 14));
  EXPECT_NE(icon->Color, kListBackground);
}

TEST(ListLayout, ByMemoARowIsTheMemosNameOverTheWholeWidth) {
  ListState list = MemoPage(40, 20);
  list.Rows[0].Icon = RowIconKind::Mobile;  // of the contacts shown before
  const std::vector<PaintedRow> rows = LayOutList(list, MemoNames(40), TenEach);
  ASSERT_EQ(rows.size(), 14U);
  EXPECT_EQ(rows[0].Key, 20);
  EXPECT_EQ(rows[13].SpokenName, QStringLiteral("Memo 33"));
  const std::vector<PaintedItem> texts = TextsOf(rows[1]);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Text, QStringLiteral("Memo 21"));
  EXPECT_EQ(texts[0].Rectangle, QRect(5, 16, 215, 16));
  for (const PaintedRow& row : rows)
    for (const PaintedItem& item : row.Items) EXPECT_EQ(item.Picture, nullptr);
  EXPECT_EQ(FillsOf(rows[1], QRect(0, 16, 225, 1)), std::vector<Rgb>{0x999999});
}

TEST(ListLayout, ByMemoTheListEndsAfterTheLastMemo) {
  const std::vector<PaintedRow> rows = LayOutList(MemoPage(22, 20), MemoNames(22), TenEach);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].Key, 21);
  EXPECT_EQ(rows[2].Role, PaintedRole::Separator);
}

TEST(ListLayout, ByMemoASelectedPositionIsFilled) {
  ListState list = MemoPage(40, 20);
  list.SelectedKeys = {22};
  const std::vector<PaintedRow> rows = LayOutList(list, MemoNames(40), TenEach);
  for (int n = 0; n < 14; ++n)
    EXPECT_EQ(rows[n].State.testFlag(PaintedStateFlag::Selected), n == 2) << n;
}

TEST(ListLayout, ARowIsFoundByItsHeight) {
  EXPECT_EQ(ListRowAt(-1), -1);
  EXPECT_EQ(ListRowAt(0), 0);
  EXPECT_EQ(ListRowAt(15), 0);
  EXPECT_EQ(ListRowAt(16), 1);
  EXPECT_EQ(ListRowAt(224), 14);
}

TEST(ListLayout, ALongSecondColumnEndsWithDotsThatFit) {
  ListState list = Page(1);
  list.Rows[0].Text = QStringLiteral("010-1234-5678");
  EXPECT_EQ(TextsOf(LayOut(list)[0])[1].Text, QStringLiteral("010-1234..."));
  EXPECT_EQ(LayOut(list)[0].SpokenName, QStringLiteral("N0, 010-1234-5678"));
}

TEST(ListLayout, ALongMemoNameEndsWithDotsThatFit) {
  const auto rows = LayOutList(MemoPage(1), {QString(30, u'x')}, TenEach);
  EXPECT_EQ(TextsOf(rows[0])[0].Text, QString(18, u'x') + QStringLiteral("..."));
  EXPECT_EQ(rows[0].SpokenName, QString(30, u'x'));
}

}  // namespace
}  // namespace quill
