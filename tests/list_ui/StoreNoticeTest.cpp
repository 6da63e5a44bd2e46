// What the view does when it is told that the store has changed.
#include <QGuiApplication>

#include "ViewFixture.h"
#include "list/ui/ContactsView.h"

namespace quill {
namespace {

class StoreNoticeTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open({QStringLiteral("Adams")});
    Add(QStringLiteral("Brown"));
    ASSERT_EQ(g_list.RowsShown, 1) << "not yet";
    m_store.Counts() = {};
  }

  int Rebuilds() { return m_store.Counts().Items; }
};

TEST_F(StoreNoticeTest, AChangeOfThisProgramItselfDoesNothing) {
  View().OnStoreNotice(1, 0);
  m_timers.Advance(5000);
  EXPECT_EQ(Rebuilds(), 0);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(StoreNoticeTest, AnyOtherRebuildsTheListHalfASecondLater) {
  View().OnStoreNotice(0, 0);
  m_timers.Advance(499);
  EXPECT_EQ(Rebuilds(), 0);
  m_timers.Advance(1);
  EXPECT_EQ(g_list.RowsShown, 2);
  EXPECT_EQ(List().Rows()[1].Key, g_list.Rows[1].Oid) << "and shows it";
}

TEST_F(StoreNoticeTest, ABurstRebuildsOnceHalfASecondAfterTheLast) {
  for (int i = 0; i < 10; ++i) {
    View().OnStoreNotice(0, i);
    m_timers.Advance(400);
  }
  EXPECT_EQ(Rebuilds(), 0);
  m_timers.Advance(100);
  EXPECT_GT(Rebuilds(), 0);
  const int once = Rebuilds();
  m_timers.Advance(5000);
  EXPECT_EQ(Rebuilds(), once);
}

TEST_F(StoreNoticeTest, TheWaitCursorShowsUntilTheRebuild) {
  View().OnStoreNotice(0, 0);
  View().OnStoreNotice(0, 0);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  m_timers.Advance(500);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(StoreNoticeTest, ARebuildKeepsTheFilter) {
  SearchEdit().setText(QStringLiteral("B"));
  View().Search();
  Add(QStringLiteral("Clark"));
  Add(QStringLiteral("Byrd"));
  View().OnStoreNotice(0, 0);
  m_timers.Advance(500);
  EXPECT_EQ(ShownNames(), (QStringList{QStringLiteral("Brown"), QStringLiteral("Byrd")}));
}

TEST_F(StoreNoticeTest, TheRowUnderAPenStaysUntilThePenIsUp) {
  View().OnStoreNotice(0, 0);
  m_timers.Advance(300);
  m_input.Press(OnRow(5));
  m_timers.Advance(200);
  EXPECT_EQ(Rebuilds(), 0);
  m_input.Release(OnRow(5));
  m_timers.Advance(500);
  EXPECT_EQ(g_list.RowsShown, 2);
}

TEST_F(StoreNoticeTest, AScrollBeforeTheRebuildShowsNobodyTwice) {
  AddNumbered(30);
  View().Rebuild();
  Add(QStringLiteral("0"));
  View().OnStoreNotice(0, 0);
  ScrollBar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
  QStringList names = ShownNames();
  EXPECT_EQ(names.removeDuplicates(), 0);
  EXPECT_EQ(names[0], QStringLiteral("001")) << "0 has scrolled away";
}

TEST_F(StoreNoticeTest, AListOfMemosIsNotRebuilt) {
  g_list.Mode = ViewMode::ByMemo;
  View().OnStoreNotice(0, 0);
  m_timers.Advance(500);
  EXPECT_EQ(Rebuilds(), 0);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(StoreNoticeTest, AViewThatGoesDoesNotRebuildAnyMore) {
  View().OnStoreNotice(0, 0);
  m_frame.reset();
  m_timers.Advance(5000);
  EXPECT_EQ(Rebuilds(), 0);
  QGuiApplication::restoreOverrideCursor();  // of the view's; it goes with the application's end
}

}  // namespace
}  // namespace quill
