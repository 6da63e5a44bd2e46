// The list's keys, wheel and scroll bar, by what they ask of the page.
#include "list/ui/ContactListCtrl.h"

#include <QCoreApplication>
#include <QWheelEvent>

#include "ViewFixture.h"
#include "list/Selection.h"

namespace quill {
namespace {

constexpr int kContacts = 100;
constexpr int kStart = 40;  // the top row before each case
constexpr int kLast = 87;   // the largest top: one line is empty then

class ContactListCtrlTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open({}, kContacts);
    View().FocusList();
  }

  void GoTo(int top) {
    ScrollBar().setSliderPosition(top);
    ScrollBar().triggerAction(QAbstractSlider::SliderMove);
    ASSERT_EQ(g_list.Top, top);
  }

  // That page, list and bar agree about the top row.
  void ExpectTop(int top) {
    EXPECT_EQ(g_list.Top, top);
    EXPECT_EQ(ScrollBar().value(), top);
    EXPECT_EQ(ScrollBar().sliderPosition(), top);
    EXPECT_EQ(List().Rows().front().Key, g_list.Rows[0].Oid);
    EXPECT_EQ(ShownNames().first(), QStringLiteral("%1").arg(top + 1, 3, 10, QLatin1Char('0')));
  }
};

struct ActionCase {
  QAbstractSlider::SliderAction Action;
  int Top;  // afterwards
};

class ScrollActionTest : public ContactListCtrlTest,
                         public testing::WithParamInterface<ActionCase> {};

TEST_P(ScrollActionTest, MovesThePageAndTheBarOrIsIgnored) {
  GoTo(kStart);
  ScrollBar().triggerAction(GetParam().Action);
  ExpectTop(GetParam().Top);
}

INSTANTIATE_TEST_SUITE_P(
    Actions, ScrollActionTest,
    testing::Values(ActionCase{QAbstractSlider::SliderSingleStepAdd, kStart + 1},
                    ActionCase{QAbstractSlider::SliderSingleStepSub, kStart - 1},
                    ActionCase{QAbstractSlider::SliderPageStepAdd, kStart + 13},
                    ActionCase{QAbstractSlider::SliderPageStepSub, kStart - 13},
                    ActionCase{QAbstractSlider::SliderToMinimum, kStart},
                    ActionCase{QAbstractSlider::SliderToMaximum, kStart},
                    ActionCase{QAbstractSlider::SliderNoAction, kStart}));

struct KeyCase {
  Qt::Key Key;
  int Row;  // the current one before
  int Top;  // afterwards
  int RowAfterwards;
};

class ListKeyTest : public ContactListCtrlTest, public testing::WithParamInterface<KeyCase> {};

TEST_P(ListKeyTest, MovesTheCurrentRowAndThePage) {
  GoTo(kStart);
  if (GetParam().Row >= 0) SelectRow(g_list, GetParam().Row);
  m_input.Key(GetParam().Key);
  ExpectTop(GetParam().Top);
  EXPECT_EQ(List().CurrentRow(), GetParam().RowAfterwards) << "as it is shown";
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ListKeyTest,
    testing::Values(KeyCase{Qt::Key_Up, 3, kStart, 2}, KeyCase{Qt::Key_Up, 0, kStart - 1, 0},
                    KeyCase{Qt::Key_Down, -1, kStart, 0}, KeyCase{Qt::Key_Down, 13, kStart + 1, 13},
                    KeyCase{Qt::Key_PageUp, 3, kStart - 13, 3},
                    KeyCase{Qt::Key_PageDown, 3, kStart + 13, 3},
                    KeyCase{Qt::Key_PageDown, -1, kStart + 13, -1}, KeyCase{Qt::Key_Home, 3, 0, 0},
                    KeyCase{Qt::Key_End, 3, kLast, 12}, KeyCase{Qt::Key_X, -1, kStart, -1}));

class ListWheelTest : public ContactListCtrlTest,
                      public testing::WithParamInterface<std::pair<int, int>> {};

TEST_P(ListWheelTest, MovesThreeLinesANotch) {
  GoTo(kStart);
  const QPointF at = List().rect().center();
  QWheelEvent event(at, List().mapToGlobal(at), {}, {0, GetParam().first}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&List(), &event);
  ExpectTop(GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Notches, ListWheelTest,
                         testing::Values(std::pair{120, kStart - 3}, std::pair{-120, kStart + 3},
                                         std::pair{-240, kStart + 6}));

TEST_F(ContactListCtrlTest, ADraggedThumbScrollsToItsPlace) {
  ScrollBar().setSliderPosition(55);
  ScrollBar().triggerAction(QAbstractSlider::SliderMove);
  ExpectTop(55);
}

TEST_F(ContactListCtrlTest, TheBarReachesTheLargestTop) {
  EXPECT_EQ(ScrollBar().minimum(), 0);
  EXPECT_EQ(ScrollBar().maximum(), kLast);
  EXPECT_EQ(ScrollBar().pageStep(), g_list.RowsPerPage);
}

TEST_F(ContactListCtrlTest, NothingScrollsBeyondTheEnds) {
  for (const int key : {Qt::Key_Up, Qt::Key_PageUp}) m_input.Key(key);
  ExpectTop(0);
  m_input.Key(Qt::Key_End);
  for (const int key : {Qt::Key_Down, Qt::Key_PageDown}) m_input.Key(key);
  ExpectTop(kLast);
}

TEST_F(ContactListCtrlTest, ARebuildAfterASearchBringsTheBarAlong) {
  GoTo(kStart);
  SearchEdit().setText(QStringLiteral("00"));
  View().Search();
  EXPECT_EQ(ScrollBar().value(), 0);
  EXPECT_EQ(ScrollBar().maximum(), 0);
}

}  // namespace
}  // namespace quill
