// Switching between names, companies and memos in the view.
#include "ViewFixture.h"
#include "list/Selection.h"
#include "memo/MemoFolder.h"
#include "store/Categories.h"

namespace quill {
namespace {

class ViewModesTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open({QStringLiteral("Kim"), QStringLiteral("Adams")});
    FixMemoFolder(g_memo);
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QStringLiteral("Kim_1.pwi")), "i"));
  }
  bool IsChecked(int id) { return m_frame->Route().State(id).Checked; }
};

struct ModeCase {
  int Command;
  ViewMode Mode;
};

class ModeCommand : public ViewModesTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(ModeCommand, SetsItsModeAndIsTheOneChecked) {
  EXPECT_EQ(m_frame->RunCommand(GetParam().Command), CommandResult::Done);
  EXPECT_EQ(g_list.Mode, GetParam().Mode);
  for (const int id : {ID_VIEW_BY_NAME, ID_VIEW_BY_COMPANY, ID_VIEW_BY_MEMO})
    EXPECT_EQ(IsChecked(id), id == GetParam().Command);
}

TEST_P(ModeCommand, DropsEveryFilterAlsoWhenItIsOnAlready) {
  m_frame->RunCommand(GetParam().Command);
  SearchEdit().setText(QStringLiteral("Kim"));
  View().Search();
  SelectRow(g_list, 0);
  m_frame->RunCommand(GetParam().Command);
  EXPECT_EQ(g_list.Filter, FilterKind::None);
  EXPECT_EQ(g_list.IndexButton, 0);
  EXPECT_EQ(SearchEdit().text(), QString());
  EXPECT_TRUE(g_list.SelectedKeys.empty());
  EXPECT_EQ(g_list.Total, GetParam().Mode == ViewMode::ByMemo ? 1 : 2);
}

INSTANTIATE_TEST_SUITE_P(Commands, ModeCommand,
                         testing::Values(ModeCase{59413, ViewMode::ByName},
                                         ModeCase{32823, ViewMode::ByCompany},
                                         ModeCase{32825, ViewMode::ByMemo}));

TEST_F(ViewModesTest, TheListSaysWhatItHolds) {
  EXPECT_EQ(List().accessibleName(), QStringLiteral("Contacts"));
  View().ShowMode(ViewMode::ByMemo);
  EXPECT_EQ(List().accessibleName(), QStringLiteral("Memos"));
  ASSERT_FALSE(List().Rows().empty());
  EXPECT_EQ(List().Rows()[0].SpokenName, QStringLiteral("Kim_1.pwi"));
}

TEST_F(ViewModesTest, AnIndexButtonCutsTheMemos) {
  View().ShowMode(ViewMode::ByMemo);
  View().ChooseIndex(1);
  EXPECT_EQ(g_list.Total, 0);
  View().ChooseIndex(2);
  EXPECT_EQ(g_list.Total, 1);
}

}  // namespace
}  // namespace quill
