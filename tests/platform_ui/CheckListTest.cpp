#include "platform/ui/CheckList.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class CheckListTest : public test::ScreenFixture {
 protected:
  CheckListTest() : m_frame(*m_screen), m_list(QStringLiteral("Choice"), &m_frame) {
    m_list.setGeometry(10, 20, 120, 100);
    m_list.show();
    Fill(8);
    m_list.CurrentChanged = [this] { m_currents.push_back(m_list.CurrentRow()); };
  }

  void Fill(int count) {
    std::vector<CheckListItem> items(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) items[i].Text = QString::number(i);
    m_list.SetItems(std::move(items));
  }
  std::vector<int> Checked() const {
    std::vector<int> checked;
    for (std::size_t i = 0; i < m_list.Items().size(); ++i)
      if (m_list.Items()[i].Checked) checked.push_back(static_cast<int>(i));
    return checked;
  }
  QPoint OnScreen(QPoint at) const { return m_list.mapTo(m_screen, at); }
  // The middle of the n-th row that is shown.
  QPoint OnShown(int row) const { return OnScreen({40, 20 * row + 10}); }
  int TopRow() const { return m_list.RowAt({0, 0}); }
  QScrollBar& Bar() const { return *m_list.findChild<QScrollBar*>(); }

  test::SampleFrame m_frame;
  CCheckList m_list;
  std::vector<int> m_currents;
};

TEST_F(CheckListTest, ATapAnywhereOnARowTurnsItsCheckOverAndMakesItCurrent) {
  m_input.Tap(OnShown(2));
  EXPECT_EQ(Checked(), std::vector<int>{2});
  EXPECT_EQ(m_list.CurrentRow(), 2);
  EXPECT_TRUE(m_list.hasFocus());
  m_input.Tap(OnScreen({5, 45}));
  EXPECT_EQ(Checked(), std::vector<int>{});
  EXPECT_EQ(m_currents, std::vector<int>{2});
}

TEST_F(CheckListTest, APenTapsItTooAndTwiceIsTwice) {
  for (const quint64 time : {1000, 1100}) {
    m_input.TabletPress(OnShown(1), time);
    m_input.TabletRelease(OnShown(1));
  }
  EXPECT_EQ(Checked(), std::vector<int>{});
  EXPECT_EQ(m_list.CurrentRow(), 1);
}

TEST_F(CheckListTest, APenThatLeavesTheRowChecksNothing) {
  m_input.Press(OnShown(1));
  m_input.Move(OnShown(2));
  m_input.Release(OnShown(2));
  EXPECT_EQ(Checked(), std::vector<int>{});
  EXPECT_EQ(m_list.CurrentRow(), -1);
}

TEST_F(CheckListTest, RowsThatMoveUnderThePenDoNotChangeWhatItTapped) {
  m_list.resize(120, 60);
  Bar().setValue(5);
  m_input.Press(OnShown(1));
  m_list.resize(120, 160);
  m_input.Release(OnShown(1));
  EXPECT_EQ(Checked(), std::vector<int>{6});
}

TEST_F(CheckListTest, ItemsThatAreGoneAreNotTapped) {
  m_input.Press(OnShown(4));
  Fill(2);
  m_input.Release(OnShown(4));
  EXPECT_EQ(Checked(), std::vector<int>{});
}

TEST_F(CheckListTest, BelowTheLastRowThereIsNothingToTap) {
  Fill(2);
  m_input.Tap(OnShown(3));
  EXPECT_EQ(Checked(), std::vector<int>{});
}

TEST_F(CheckListTest, KeysMoveTheCurrentRowAndSpaceTurnsItsCheckOver) {
  m_list.setFocus();
  m_input.Key(Qt::Key_Space);
  EXPECT_EQ(Checked(), std::vector<int>{}) << "none is current yet";
  m_input.Key(Qt::Key_Down);
  m_input.Key(Qt::Key_Down);
  m_input.Key(Qt::Key_Space);
  EXPECT_EQ(Checked(), std::vector<int>{1});
  m_input.Key(Qt::Key_PageDown);
  EXPECT_EQ(m_list.CurrentRow(), 6);
  EXPECT_EQ(m_currents, (std::vector<int>{0, 1, 6}));
  EXPECT_EQ(Checked(), std::vector<int>{1});
}

TEST_F(CheckListTest, OtherKeysGoOnToTheWindow) {
  test::SampleDialog dialog(*m_screen);
  CCheckList list(QStringLiteral("Choice"), &dialog);
  list.SetItems({{QStringLiteral("One")}});
  list.show();
  const test::Steps steps(*m_screen, {[this, &list] {
    list.setFocus();
    m_input.Key(Qt::Key_Return);
  }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
}

TEST_F(CheckListTest, TheCurrentRowIsBroughtIntoSight) {
  m_list.SetCurrent(7);
  EXPECT_EQ(TopRow(), 3);
  EXPECT_EQ(Bar().value(), 3);
  m_list.SetCurrent(1);
  EXPECT_EQ(TopRow(), 1);
  m_list.SetCurrent(7);
  m_list.resize(120, 60);
  EXPECT_EQ(TopRow(), 5);
}

TEST_F(CheckListTest, ItsBarIsThereWhenTheRowsDoNotFitAndScrollsThem) {
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(Bar().geometry(), QRect(105, 0, 15, 100));
  EXPECT_EQ(Bar().maximum(), 3);
  EXPECT_EQ(Bar().pageStep(), 5);
  EXPECT_EQ(m_list.Rows()[0].Rectangle.width(), 105);
  Bar().setValue(2);
  EXPECT_EQ(TopRow(), 2);
  m_input.Tap(OnShown(0));
  EXPECT_EQ(Checked(), std::vector<int>{2});
  Fill(5);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(m_list.Rows()[0].Rectangle.width(), 120);
  EXPECT_EQ(TopRow(), 0);
}

TEST_F(CheckListTest, AWheelScrollsIt) {
  const QPointF at(40, 40);
  QWheelEvent event(at, m_list.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&m_list, &event);
  EXPECT_EQ(TopRow(), 3);
}

TEST_F(CheckListTest, NewItemsHaveNoCurrentOneAndSayNothing) {
  m_list.SetCurrent(3);
  m_currents.clear();
  Fill(3);
  EXPECT_EQ(m_list.CurrentRow(), -1);
  EXPECT_TRUE(m_currents.empty());
  m_list.SetCurrent(0);
  m_list.SetCurrent(-1);
  EXPECT_EQ(m_currents, (std::vector<int>{0, -1}));
}

TEST_F(CheckListTest, WorksWhenNobodyAsksWhatIsCurrent) {
  m_list.CurrentChanged = nullptr;
  m_list.SetCurrent(2);
  EXPECT_EQ(m_list.CurrentRow(), 2);
}

}  // namespace
}  // namespace quill
