#include "platform/FileListLayout.h"

#include <gtest/gtest.h>

#include "resources/FilePictures.h"

namespace quill {
namespace {

constexpr QSize kThreeRows{200, 3 * kFileRowHeight + 5};

double TenPerLetter(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

FolderListing SampleListing() {
  return {.Folder = u"/a"_qs,
          .Entries = {{FolderEntryKind::Parent, u".."_qs},
                      {FolderEntryKind::Folder, u"Cards"_qs},
                      {FolderEntryKind::File, u"b.vcf"_qs},
                      {FolderEntryKind::File, u"c.vcf"_qs}}};
}

std::vector<PaintedRow> LayOut(const FileListView& view) {
  return LayOutFileList(SampleListing(), view, TenPerLetter);
}

TEST(FileListLayout, HasARowForEachEntryThatFits) {
  const auto rows = LayOut({.Size = kThreeRows});
  ASSERT_EQ(rows.size(), 3U);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(rows[static_cast<std::size_t>(i)].Key, i);
    EXPECT_EQ(rows[static_cast<std::size_t>(i)].Rectangle,
              QRect(0, i * kFileRowHeight, 200, kFileRowHeight));
  }
}

TEST(FileListLayout, BeginsAtItsTop) {
  const auto rows = LayOut({.Size = kThreeRows, .Top = 2});
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].Key, 2);
  EXPECT_EQ(rows[0].Rectangle.top(), 0);
}

TEST(FileListLayout, ShowsAndSaysWhatAnEntryIs) {
  const auto rows = LayOut({.Size = kThreeRows});
  EXPECT_EQ(rows[0].SpokenName, u"Folder above"_qs);
  EXPECT_EQ(rows[1].SpokenName, u"Folder Cards"_qs);
  EXPECT_EQ(rows[2].SpokenName, u"b.vcf"_qs);
  EXPECT_EQ(rows[0].Items[0].Picture, &resources::kFolderPicture);
  EXPECT_EQ(rows[1].Items[0].Picture, &resources::kFolderPicture);
  EXPECT_EQ(rows[2].Items[0].Picture, &resources::kSheetPicture);
  EXPECT_EQ(rows[2].Items[1].Text, u"b.vcf"_qs);
}

TEST(FileListLayout, HighlightsTheSelectedEntryAlone) {
  const auto rows = LayOut({.Size = kThreeRows, .Current = 1});
  EXPECT_EQ(rows[0].State, PaintedState(PaintedStateFlag::Selectable));
  EXPECT_EQ(rows[1].State,
            PaintedStateFlag::Selectable | PaintedStateFlag::Selected | PaintedStateFlag::Current);
  ASSERT_TRUE(rows[1].Items[0].Fill.has_value());
  EXPECT_EQ(rows[1].Items[0].Rectangle, rows[1].Rectangle);
  EXPECT_FALSE(rows[0].Items[0].Fill.has_value());
}

TEST(FileListLayout, ALongNameEndsInsideTheRow) {
  const FolderListing listing{.Folder = u"/"_qs,
                              .Entries = {{FolderEntryKind::File, QString(40, u'한')}}};
  const auto rows = LayOutFileList(listing, {.Size = kThreeRows}, TenPerLetter);
  const PaintedItem& name = rows[0].Items[1];
  EXPECT_TRUE(name.Text.endsWith(u"..."_qs));
  EXPECT_LE(TenPerLetter(name.Text), name.Rectangle.width());
  EXPECT_EQ(rows[0].SpokenName, QString(40, u'한'));
}

TEST(FileListLayout, SaysThatAFolderCannotBeRead) {
  FolderListing listing{
      .Folder = u"/a"_qs, .Entries = {{FolderEntryKind::Parent, u".."_qs}}, .IsReadable = false};
  const auto rows = LayOutFileList(listing, {.Size = kThreeRows}, TenPerLetter);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].SpokenName, u"This folder cannot be read."_qs);
  EXPECT_EQ(rows[1].Items[0].Text, rows[1].SpokenName);
  EXPECT_EQ(rows[1].Key, kFileNoteKey);
  EXPECT_EQ(rows[1].Role, PaintedRole::Text);
  EXPECT_EQ(rows[1].Rectangle.top(), kFileRowHeight);
}

TEST(FileListLayout, SaysThatThereIsNothingToChoose) {
  const FolderListing listing{.Folder = u"/a"_qs, .Entries = {{FolderEntryKind::Parent, u".."_qs}}};
  const auto rows = LayOutFileList(listing, {.Size = kThreeRows}, TenPerLetter);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].SpokenName, u"There is nothing to choose here."_qs);
}

struct TopCase {
  const char* Name;
  int Top;
  int Current;
  int Count;
  int Expected;
};

class FileTop : public testing::TestWithParam<TopCase> {};

TEST_P(FileTop, ShowsTheSelectedEntryAndFillsTheList) {
  const TopCase& given = GetParam();
  EXPECT_EQ(FileTopToShow({kThreeRows, given.Top, given.Current}, given.Count), given.Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, FileTop,
    testing::Values(TopCase{"NothingSelected", 2, -1, 10, 2}, TopCase{"InView", 2, 4, 10, 2},
                    TopCase{"Above", 4, 1, 10, 1}, TopCase{"Below", 0, 5, 10, 3},
                    TopCase{"PastTheEnd", 9, -1, 10, 7}, TopCase{"Short", 1, -1, 2, 0}),
    [](const auto& given) { return given.param.Name; });

TEST(FileListLayout, HasRoomForOneRowHoweverSmall) {
  EXPECT_EQ(FileRowsPerPage({200, 4}), 1);
  EXPECT_EQ(FileRowsPerPage(kThreeRows), 3);
}

}  // namespace
}  // namespace quill
