#include "appointments/ui/RecurrenceKindTabs.h"

#include <QApplication>

#include "platform_ui/AccessibleChild.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using enum RecurrenceKind;

class RecurrenceKindTabsTest : public test::ScreenFixture {
 protected:
  RecurrenceKindTabsTest() : m_frame(*m_screen), m_tabs(&m_frame) {
    m_tabs.show();
    m_tabs.Chosen = [this] { m_chosen.push_back(m_tabs.Kind()); };
  }

  QPoint On(int x, int y) const { return m_tabs.mapTo(m_screen, QPoint(x, y)); }
  bool IsSelected(std::size_t tab) const {
    return m_tabs.Rows()[tab].State.testFlag(PaintedStateFlag::Selected);
  }

  test::SampleFrame m_frame;
  CRecurrenceKindTabs m_tabs;
  std::vector<RecurrenceKind> m_chosen;
};

TEST_F(RecurrenceKindTabsTest, StandsAtThePagesTopLeftCorner) {
  EXPECT_EQ(m_tabs.geometry(), QRect(0, 0, 240, 20));
}

TEST_F(RecurrenceKindTabsTest, ATapInATabChoosesItsKind) {
  m_input.Tap(On(116, 5));
  EXPECT_EQ(m_tabs.Kind(), Monthly);
  EXPECT_TRUE(IsSelected(2));
  m_input.Tap(On(57, 18));
  EXPECT_EQ(m_chosen, (std::vector{Monthly, Daily}));
}

TEST_F(RecurrenceKindTabsTest, ATapOnTheChosenTabChoosesItAgain) {
  m_input.Tap(On(10, 10));
  EXPECT_EQ(m_chosen, std::vector{Daily});
}

TEST_F(RecurrenceKindTabsTest, ATapBesideTheTabsKeepsTheKind) {
  m_tabs.SetKind(Weekly);
  for (const QPoint at : {QPoint(10, 4), QPoint(10, 19), QPoint(235, 10)}) {
    m_input.Tap(On(at.x(), at.y()));
    EXPECT_EQ(m_tabs.Kind(), Weekly);
    EXPECT_TRUE(IsSelected(1));
  }
  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(RecurrenceKindTabsTest, APenThatLeavesTheTabChoosesNothingAndLeavesNoMark) {
  m_tabs.SetKind(Weekly);
  const auto untouched = m_tabs.grab().toImage();
  m_input.Press(On(10, 10));
  EXPECT_NE(m_tabs.grab().toImage(), untouched);
  m_input.Move(On(200, 10));
  m_input.Release(On(200, 10));
  EXPECT_EQ(m_tabs.Kind(), Weekly);
  EXPECT_TRUE(m_chosen.empty());
  m_tabs.clearFocus();
  EXPECT_EQ(m_tabs.grab().toImage(), untouched);
}

TEST_F(RecurrenceKindTabsTest, AKindThatIsSetIsShownAndNotSaid) {
  m_tabs.SetKind(Yearly);
  EXPECT_TRUE(IsSelected(3));
  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(RecurrenceKindTabsTest, TheArrowKeysChoose) {
  m_tabs.setFocus(Qt::TabFocusReason);
  m_input.Key(Qt::Key_Right);
  m_input.Key(Qt::Key_End);
  m_input.Key(Qt::Key_Left);
  m_input.Key(Qt::Key_Home);
  EXPECT_EQ(m_chosen, (std::vector{Weekly, Yearly, Monthly, Daily}));
}

TEST_F(RecurrenceKindTabsTest, TheFocusIsSeenAndComesWithThePen) {
  const auto without = m_tabs.grab().toImage();
  m_input.TabletPress(On(10, 10));
  m_input.TabletRelease(On(10, 10));
  EXPECT_EQ(QApplication::focusWidget(), &m_tabs);
  EXPECT_NE(m_tabs.grab().toImage(), without);
  m_tabs.clearFocus();
  EXPECT_EQ(m_tabs.grab().toImage(), without);
}

TEST_F(RecurrenceKindTabsTest, AssistiveTechnologySeesTabsAndPressesThem) {
  test::AccessibleChild weekly(m_tabs, u"Weekly");
  EXPECT_EQ(m_tabs.Role(), QAccessible::PageTabList);
  EXPECT_EQ(m_tabs.accessibleName(), QStringLiteral("How often"));
  EXPECT_EQ(weekly.Role(), QAccessible::PageTab);
  EXPECT_FALSE(weekly.State().selected);
  weekly.Press();
  EXPECT_TRUE(weekly.State().selected);
  EXPECT_EQ(m_chosen, std::vector{Weekly});
  EXPECT_EQ(QApplication::focusWidget(), &m_tabs);
}

TEST_F(RecurrenceKindTabsTest, TheLineBelowTheTabsIsNoKind) {
  m_tabs.ActivateRow(4);
  EXPECT_TRUE(m_chosen.empty());
  EXPECT_EQ(m_tabs.Kind(), Daily);
}

}  // namespace
}  // namespace quill
