#include "list/ui/MemoFollower.h"

#include "ViewFixture.h"
#include "list/Selection.h"
#include "memo/MemoFolder.h"

namespace quill {
namespace {

class MemoFollowerTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open();
    FixMemoFolder(g_memo);
    for (const char* name : {"a.pwi", "b.pwi"}) Add(name);
    View().ShowMode(ViewMode::ByMemo);
  }
  void Add(const char* name) {
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QLatin1String(name)), "ink"));
  }

  MemoFollower m_follower{View()};
};

TEST_F(MemoFollowerTest, MemosThatOthersMakeAreListedHalfASecondLaterWhereTheListStands) {
  SelectRow(g_list, 1);
  Add("aa.pwi");
  m_follower.OnMemosChanged();
  m_timers.Advance(400);
  m_follower.OnMemosChanged();
  m_timers.Advance(499);
  EXPECT_EQ(g_memo.NameList.size(), 2);
  m_timers.Advance(1);
  EXPECT_EQ(g_memo.NameList.size(), 3);
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{2}) << "b, which stands there now";
  EXPECT_TRUE(List().Rows()[2].State.testFlag(PaintedStateFlag::Selected));
  Add("c.pwi");
  m_timers.Advance(5000);
  EXPECT_EQ(g_memo.NameList.size(), 3) << "of which nobody told";
}

TEST_F(MemoFollowerTest, WhatADialogAsksAboutStaysListedUntilItHasClosed) {
  Add("c.pwi");
  SelectRow(g_list, 1);
  const test::Steps steps(*m_screen, {[&] {
    m_follower.OnMemosChanged();
    m_timers.Advance(500);
    EXPECT_EQ(g_memo.NameList.size(), 2);
    m_input.Key(Qt::Key_Escape);
  }});
  m_frame->RunCommand(ID_RENAME_MEMO);
  m_timers.Advance(500);
  EXPECT_EQ(g_memo.NameList.size(), 3);
}

TEST_F(MemoFollowerTest, OverContactsMemosAreNotFollowed) {
  View().ShowMode(ViewMode::ByName);
  m_follower.OnMemosChanged();
  EXPECT_FALSE(g_list.RebuildDue);
}

TEST_F(MemoFollowerTest, ANewShellListsWhatCameMeanwhile) {
  Add("c.pwi");
  m_follower.OnMemosChanged();
  View().ShowState();
  EXPECT_EQ(g_memo.NameList.size(), 3);
}

}  // namespace
}  // namespace quill
