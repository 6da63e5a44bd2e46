// Pen and keys on the list, by what is selected and asked for.
#include <QCoreApplication>
#include <QTouchEvent>
#include <QWheelEvent>

#include "ViewFixture.h"
#include "list/Selection.h"
#include "list/TapMachine.h"

namespace quill {
namespace {

class ListGesturesTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open({}, 30);
    List().OpenAsked = [this](int row) { Note(QStringLiteral("open %1").arg(row)); };
    List().CardAsked = [this](int row, QPoint at) { NoteAt("card", row, at); };
    List().PopupAsked = [this](int row, QPoint at) { NoteAt("popup", row, at); };
  }

  QString Asked() { return std::exchange(m_asked, {}).join(u';'); }

  // The rows that are painted as selected.
  std::vector<int> SelectedRows() {
    std::vector<int> selected;
    for (std::size_t row = 0; row < List().Rows().size(); ++row)
      if (List().Rows()[row].State.testFlag(PaintedStateFlag::Selected))
        selected.push_back(static_cast<int>(row));
    return selected;
  }

  bool HoldTimerRuns() const { return m_timers.IsRunning(List(), kListHoldTimer); }

 private:
  void Note(const QString& what) { m_asked.append(what); }
  void NoteAt(const char* what, int row, QPoint at) {
    Note(
        QStringLiteral("%1 %2 at %3,%4").arg(QLatin1String(what)).arg(row).arg(at.x()).arg(at.y()));
  }

  QStringList m_asked;
};

using Rows = std::vector<int>;

TEST_F(ListGesturesTest, APressSelectsAndItsReleaseOpens) {
  m_input.Press(OnRow(2));
  EXPECT_EQ(SelectedRows(), Rows{2});
  EXPECT_EQ(List().CurrentRow(), 2);
  EXPECT_TRUE(List().hasFocus());
  EXPECT_EQ(Asked(), QString());
  m_input.Release(OnRow(2));
  EXPECT_EQ(Asked(), QStringLiteral("open 2"));
}

TEST_F(ListGesturesTest, AStylusDoesTheSame) {
  m_input.TabletPress(OnRow(2));
  EXPECT_TRUE(List().hasFocus());
  m_input.TabletRelease(OnRow(2));
  EXPECT_EQ(SelectedRows(), Rows{2});
  EXPECT_EQ(Asked(), QStringLiteral("open 2"));
}

TEST_F(ListGesturesTest, ADragSelectsARunAndOpensNothing) {
  m_input.Press(OnRow(2));
  m_input.Move(OnRow(5));
  m_input.Move(OnRow(3));
  m_input.Release(OnRow(3));
  EXPECT_EQ(SelectedRows(), (Rows{2, 3}));
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, ADragNearTheListsEndSelectsNoMore) {
  m_input.Press(OnRow(2));
  m_input.Move(List().mapTo(m_screen, QPoint(50, 215)));
  EXPECT_EQ(SelectedRows(), Rows{2});
  m_input.Move(List().mapTo(m_screen, QPoint(50, 214)));
  EXPECT_EQ(SelectedRows().size(), 12U);
}

TEST_F(ListGesturesTest, ATapOnTheCardsStripAsksForTheCardThere) {
  m_input.Tap(OnRow(2, 200));
  EXPECT_EQ(Asked(), QStringLiteral("card 2 at 200,40"));
  EXPECT_EQ(SelectedRows(), Rows{2});
}

TEST_F(ListGesturesTest, ADoubleTapThereAsksForTheCardAgain) {
  m_input.Tap(OnRow(2, 200));
  m_input.Press(OnRow(2, 200));  // the window system sends both
  m_input.PressAgain(OnRow(2, 200));
  m_input.Release(OnRow(2, 200));
  EXPECT_EQ(Asked(), QStringLiteral("card 2 at 200,40;card 2 at 200,40"));
}

TEST_F(ListGesturesTest, APenThatTellsOfPressureAloneHasNotMoved) {
  const QPoint atBottom = OnRow(13);  // where moves drag no further
  m_input.Press(atBottom);
  m_input.Move(atBottom);
  m_timers.Advance(500);
  EXPECT_TRUE(Asked().startsWith(QStringLiteral("popup 13"))) << Asked().toStdString();
}

TEST_F(ListGesturesTest, ATapThatEndsBesideTheListOpens) {
  m_input.Press(OnRow(2));
  m_input.Move({300, 400});
  m_input.Release({300, 400});
  EXPECT_EQ(Asked().section(u' ', 0, 1), QStringLiteral("open 2"));
}

TEST_F(ListGesturesTest, TheMenuKeyAsksForThePopupOfARunsFirstRow) {
  m_input.Press(OnRow(2));
  m_input.Move(OnRow(4));
  m_input.Release(OnRow(4));
  m_input.Key(Qt::Key_Menu);
  EXPECT_TRUE(Asked().startsWith(QStringLiteral("popup 2"))) << Asked().toStdString();
}

TEST_F(ListGesturesTest, HalfASecondOnARowAsksForItsPopup) {
  m_input.Press(OnRow(2, 61));
  m_timers.Advance(499);
  EXPECT_EQ(Asked(), QString());
  m_timers.Advance(1);
  EXPECT_EQ(Asked(), QStringLiteral("popup 2 at 61,40"));
  m_timers.Advance(5000);
  m_input.Release(OnRow(2, 61));
  EXPECT_EQ(Asked(), QString()) << "once, and the release does nothing";
}

TEST_F(ListGesturesTest, ADragAsksForNoPopup) {
  m_input.Press(OnRow(2));
  m_input.Move(OnRow(3));
  m_input.Move(OnRow(2));
  m_timers.Advance(5000);
  EXPECT_EQ(Asked(), QString());
  m_input.Release(OnRow(2));
  EXPECT_EQ(Asked(), QStringLiteral("open 2"));
}

TEST_F(ListGesturesTest, WithoutAPopupAHoldOnlySelects) {
  List().PopupAsked = nullptr;
  List().CardAsked = nullptr;
  m_input.Press(OnRow(2));
  m_timers.Advance(500);
  m_input.Release(OnRow(2));
  m_input.Tap(OnRow(3, 200));
  EXPECT_EQ(Asked(), QString());
  EXPECT_EQ(SelectedRows(), Rows{3});
}

TEST_F(ListGesturesTest, ATouchThatIsTakenAwayOpensNothing) {
  m_input.TouchPress(OnRow(2));
  QTouchEvent cancel(QEvent::TouchCancel);
  QCoreApplication::sendEvent(&List(), &cancel);
  EXPECT_FALSE(HoldTimerRuns());
  EXPECT_EQ(Asked(), QString());
  m_input.TouchRelease(OnRow(2));
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, ATapBelowTheLastRowSelectsNothing) {
  m_input.Tap(OnRow(2));
  Asked();
  m_input.Tap(List().mapTo(m_screen, QPoint(50, 224)));
  EXPECT_EQ(SelectedRows(), Rows());
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, AnEmptyListTakesTapsAndSelectsNothing) {
  g_list = {};
  for (const Oid oid : m_store.Contacts()->FindByFileAs(QStringLiteral("001")))
    m_store.Contacts()->Remove(oid);
  SearchEdit().setText(QStringLiteral("x"));
  View().Search();
  m_input.Tap(OnRow(0));
  EXPECT_EQ(g_list.CurrentRow, -1);
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, AWheelUnderThePenEndsTheTap) {
  m_input.Press(OnRow(2));
  const QPointF at(OnRow(2));
  QWheelEvent event(at, at, {}, {0, -40}, Qt::LeftButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&List(), &event);
  m_input.Release(OnRow(2));
  EXPECT_EQ(Asked(), QString());
  EXPECT_EQ(SelectedRows(), Rows{2}) << "the row, with the contact that stands there now";
}

TEST_F(ListGesturesTest, AScrollBeforeAnyTapSelectsNothing) {
  ScrollBar().triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(SelectedRows(), Rows());
  m_input.Press(OnRow(4));
  ScrollBar().triggerAction(QAbstractSlider::SliderPageStepSub);
  EXPECT_EQ(SelectedRows(), Rows{4});
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{g_list.Rows[4].Oid});
}

TEST_F(ListGesturesTest, AViewThatGoesTakesItsHoldTimerAlong) {
  m_input.Press(OnRow(2));
  ASSERT_TRUE(HoldTimerRuns());
  m_frame.reset();
  m_timers.Advance(5000);
  EXPECT_EQ(Asked(), QString());
}

struct KeyAsks {
  int Key;
  Qt::KeyboardModifiers Modifiers;
  const char* Asked;
};

class ListActionKey : public ListGesturesTest, public testing::WithParamInterface<KeyAsks> {};

TEST_P(ListActionKey, ActsOnTheCurrentRowWhenItIsSelected) {
  View().FocusList();
  SelectRow(g_list, 3);
  ClearSelectedKeys(g_list);
  m_input.KeyPress(GetParam().Key, GetParam().Modifiers);
  EXPECT_EQ(Asked(), QString());
  SelectRow(g_list, 3);
  m_input.KeyPress(GetParam().Key, GetParam().Modifiers);
  EXPECT_EQ(Asked(), QString::fromLatin1(GetParam().Asked));
}

INSTANTIATE_TEST_SUITE_P(Keys, ListActionKey,
                         testing::Values(KeyAsks{Qt::Key_Return, Qt::NoModifier, "open 3"},
                                         KeyAsks{Qt::Key_Enter, Qt::KeypadModifier, "open 3"},
                                         KeyAsks{Qt::Key_Menu, Qt::NoModifier, "popup 3 at 112,64"},
                                         KeyAsks{Qt::Key_F10, Qt::ShiftModifier,
                                                 "popup 3 at 112,64"},
                                         KeyAsks{Qt::Key_Right, Qt::NoModifier, "card 3 at 225,58"},
                                         KeyAsks{Qt::Key_Left, Qt::NoModifier, ""}));

TEST_F(ListGesturesTest, OfARunEnterOpensNothing) {
  View().FocusList();
  SelectRun(g_list, 2, 3);
  m_input.Key(Qt::Key_Return);
  m_input.Key(Qt::Key_Right);
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, AKeyThatIsHeldOpensOnce) {
  View().FocusList();
  SelectRow(g_list, 3);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
  QCoreApplication::sendEvent(&List(), &again);
  EXPECT_EQ(Asked(), QString());
}

TEST_F(ListGesturesTest, ByMemoNoCardIsAskedFor) {
  g_list.Mode = ViewMode::ByMemo;
  View().FocusList();
  SelectRow(g_list, 3);
  m_input.Key(Qt::Key_Right);
  m_input.Tap(OnRow(3, 200));
  EXPECT_EQ(Asked(), QStringLiteral("open 3"));
}

}  // namespace
}  // namespace quill
