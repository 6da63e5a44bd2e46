#include "list/TapMachine.h"

#include <gtest/gtest.h>

#include "list/Selection.h"

namespace quill {
namespace {

using Keys = std::vector<int>;

constexpr int kHeight = 225;  // of the list control
constexpr int kX = 50;        // beside the card's strip

// A page of this many contacts with the Oids 100, 101, ...
ListState Page(int rows) {
  ListState list;
  list.Total = rows;
  list.RowsShown = rows;
  for (int n = 0; n < rows; ++n) list.Rows[n].Oid = 100 + n;
  return list;
}

int Middle(int row) { return 16 * row + 8; }

// What the pen or the timer does: rows by their middle unless a height says otherwise.
struct PenStep {
  enum Kind { Press, Move, Release, Hold, DoublePress, Cancel } What;
  int Y = 0;
  int X = kX;
};
PenStep Press(int row, int x = kX) { return {PenStep::Press, Middle(row), x}; }
PenStep PressAt(int y) { return {PenStep::Press, y}; }
PenStep Move(int row) { return {PenStep::Move, Middle(row)}; }
PenStep MoveAt(int y) { return {PenStep::Move, y}; }
PenStep Release(int row, int x = kX) { return {PenStep::Release, Middle(row), x}; }
PenStep ReleaseAt(int y, int x = kX) { return {PenStep::Release, y, x}; }
PenStep DoublePress(int row, int x = kX) { return {PenStep::DoublePress, Middle(row), x}; }
const PenStep kHold{PenStep::Hold};
const PenStep kCancel{PenStep::Cancel};

// The machine over a list whose selection its intentions change.
struct Pen {
  TapMachine Machine;
  ListState List = Page(14);
  bool TimerRuns = false;

  TapIntention Feed(const PenStep& step) {
    const TapIntention intention = Ask(step);
    if (intention.Timer == TapTimer::Start) TimerRuns = true;
    if (intention.Timer == TapTimer::Stop) TimerRuns = false;
    ApplyTap(List, intention);
    return intention;
  }

 private:
  TapIntention Ask(const PenStep& step) {
    const QPoint at(step.X, step.Y);
    switch (step.What) {
      case PenStep::Press:
        return Machine.Press(List, at);
      case PenStep::Move:
        return Machine.Move(List, at, kHeight);
      case PenStep::Release:
        return Machine.Release(List, at);
      case PenStep::Hold:
        return Machine.Hold(List);
      case PenStep::DoublePress:
        return Machine.DoublePress(List, at);
      case PenStep::Cancel:
        return Machine.Cancel();
    }
    Q_UNREACHABLE();
  }
};

struct GestureCase {
  const char* Name;
  std::vector<PenStep> Steps;
  TapAction Action;  // of the last step
  Keys Selected;
  int CurrentRow;
  bool TimerRuns = false;
};

class Gesture : public testing::TestWithParam<GestureCase> {};

TEST_P(Gesture, EndsInThisActionAndSelection) {
  const GestureCase& gesture = GetParam();
  SCOPED_TRACE(gesture.Name);
  Pen pen;
  TapIntention last;
  for (const PenStep& step : gesture.Steps) last = pen.Feed(step);
  EXPECT_EQ(last.Action, gesture.Action);
  EXPECT_EQ(pen.List.SelectedKeys, gesture.Selected);
  EXPECT_EQ(pen.List.CurrentRow, gesture.CurrentRow);
  EXPECT_EQ(pen.TimerRuns, gesture.TimerRuns);
}

INSTANTIATE_TEST_SUITE_P(
    Taps, Gesture,
    testing::Values(
        GestureCase{"a press selects", {Press(2)}, TapAction::Select, {102}, 2, true},
        GestureCase{"a tap opens", {Press(2), Release(2)}, TapAction::Open, {102}, 2},
        GestureCase{"the next press takes the selection",
                    {Press(2), Release(2), Press(5)},
                    TapAction::Select,
                    {105},
                    5,
                    true},
        GestureCase{"a press beside all rows", {PressAt(-1)}, TapAction::Clear, {}, -1},
        GestureCase{"a press on the sliver", {PressAt(224)}, TapAction::Clear, {}, -1},
        GestureCase{"a tap on the sliver clears",
                    {Press(2), Release(2), PressAt(224), ReleaseAt(224)},
                    TapAction::None,
                    {},
                    2},
        GestureCase{"a press beside them ends the gesture before",
                    {Press(2), PressAt(224), ReleaseAt(224)},
                    TapAction::None,
                    {},
                    2},
        GestureCase{"a trembling pen on its row",
                    {PressAt(33), MoveAt(46), ReleaseAt(40)},
                    TapAction::Open,
                    {102},
                    2},
        GestureCase{
            "and its timer runs on", {PressAt(33), MoveAt(46)}, TapAction::None, {102}, 2, true},
        GestureCase{"a release without a press", {Release(2)}, TapAction::None, {}, -1},
        GestureCase{"a move without a press", {Move(2)}, TapAction::None, {}, -1},
        GestureCase{"a pen that was taken away",
                    {Press(2), kCancel, Release(2)},
                    TapAction::None,
                    {102},
                    2},
        GestureCase{"stops its timer", {Press(2), kCancel}, TapAction::None, {102}, 2}));

INSTANTIATE_TEST_SUITE_P(
    Drags, Gesture,
    testing::Values(
        GestureCase{"down", {Press(2), Move(3)}, TapAction::SelectRun, {102, 103}, 3},
        GestureCase{"up", {Press(4), Move(2)}, TapAction::SelectRun, {104, 103, 102}, 2},
        GestureCase{"down and partly back",
                    {Press(2), Move(5), Move(3)},
                    TapAction::SelectRun,
                    {102, 103},
                    3},
        GestureCase{"over the same row again",
                    {Press(2), Move(3), MoveAt(60)},
                    TapAction::None,
                    {102, 103},
                    3},
        GestureCase{"its end makes the anchor current",
                    {Press(2), Move(5), Release(5)},
                    TapAction::EndRun,
                    {102, 103, 104, 105},
                    2},
        GestureCase{"back to the anchor is a tap",
                    {Press(2), Move(5), Move(2), Release(2)},
                    TapAction::Open,
                    {102},
                    2},
        GestureCase{
            "but never a hold", {Press(2), Move(5), Move(2), kHold}, TapAction::None, {102}, 2},
        GestureCase{"nor a hold beyond the list's end",
                    {Press(2), MoveAt(-1), kHold},
                    TapAction::None,
                    {102},
                    2},
        GestureCase{"is over with its release",
                    {Press(2), Move(3), Release(3), Move(5)},
                    TapAction::None,
                    {102, 103},
                    2},
        GestureCase{"a late timer does not end it",
                    {Press(2), Move(5), kHold, Move(4)},
                    TapAction::SelectRun,
                    {102, 103, 104},
                    4}));

INSTANTIATE_TEST_SUITE_P(
    Holds, Gesture,
    testing::Values(
        GestureCase{"half a second on a row", {Press(2), kHold}, TapAction::ShowPopup, {102}, 2},
        GestureCase{
            "its release does nothing", {Press(2), kHold, Release(2)}, TapAction::None, {102}, 2},
        GestureCase{"nor do its moves", {Press(2), kHold, Move(5)}, TapAction::None, {102}, 2},
        GestureCase{"the tap after it opens",
                    {Press(2), kHold, Release(2), Press(3), Release(3)},
                    TapAction::Open,
                    {103},
                    3},
        GestureCase{"a timer without a press", {kHold}, TapAction::None, {}, -1}));

INSTANTIATE_TEST_SUITE_P(
    DoubleTaps, Gesture,
    testing::Values(
        GestureCase{"after a tap that opened it only presses",
                    {Press(2), Release(2), DoublePress(2)},
                    TapAction::Select,
                    {102},
                    2,
                    true},
        GestureCase{"after a tap that showed the card it only presses",
                    {Press(2, 200), Release(2, 200), DoublePress(2, 200)},
                    TapAction::Select,
                    {102},
                    2,
                    true},
        GestureCase{"and its release shows the card again",
                    {Press(2, 200), Release(2, 200), DoublePress(2, 200), Release(2, 200)},
                    TapAction::ShowCard,
                    {102},
                    2},
        GestureCase{"after a hold whose menu opened nothing it opens",
                    {Press(2), kHold, Release(2), DoublePress(2)},
                    TapAction::Open,
                    {102},
                    2},
        GestureCase{"and its release opens nothing more",
                    {Press(2), kHold, Release(2), DoublePress(2), Release(2)},
                    TapAction::None,
                    {102},
                    2},
        GestureCase{"after a drag over one row and back it only presses",
                    {Press(2), Move(3), Move(2), Release(2), DoublePress(2)},
                    TapAction::Select,
                    {102},
                    2,
                    true},
        GestureCase{"on another row it presses",
                    {Press(2, 200), Release(2, 200), DoublePress(3, 200)},
                    TapAction::Select,
                    {103},
                    3,
                    true},
        GestureCase{"after a drag it presses",
                    {Press(2), Move(3), Release(3), DoublePress(2)},
                    TapAction::Select,
                    {102},
                    2,
                    true},
        GestureCase{"below the last row it clears",
                    {Press(2, 200), Release(2, 200), {PenStep::DoublePress, 224}},
                    TapAction::Clear,
                    {},
                    2},
        GestureCase{
            "above the list it clears", {{PenStep::DoublePress, -5}}, TapAction::Clear, {}, -1}));

struct CardCase {
  int X;
  ViewMode Mode;
  TapAction Action;
};

class CardStrip : public testing::TestWithParam<CardCase> {};

TEST_P(CardStrip, ShowsTheCardForTapsThatEndInItOutsideMemoMode) {
  Pen pen;
  pen.List.Mode = GetParam().Mode;
  pen.Feed(Press(2));
  const TapIntention intention = pen.Feed(ReleaseAt(37, GetParam().X));
  EXPECT_EQ(intention.Action, GetParam().Action);
  EXPECT_EQ(intention.Row, 2);
  EXPECT_EQ(intention.At, QPoint(GetParam().X, 37));
}

INSTANTIATE_TEST_SUITE_P(Ends, CardStrip,
                         testing::Values(CardCase{195, ViewMode::ByName, TapAction::Open},
                                         CardCase{196, ViewMode::ByName, TapAction::ShowCard},
                                         CardCase{219, ViewMode::ByCompany, TapAction::ShowCard},
                                         CardCase{220, ViewMode::ByName, TapAction::Open},
                                         CardCase{200, ViewMode::ByMemo, TapAction::Open}));

struct BandCase {
  int Y;
  int CurrentRow;  // after a press on row 5
};

class MoveBand : public testing::TestWithParam<BandCase> {};

TEST_P(MoveBand, IsWhereADragSelects) {
  Pen pen;
  pen.Feed(Press(5));
  pen.Feed(MoveAt(GetParam().Y));
  EXPECT_EQ(pen.List.CurrentRow, GetParam().CurrentRow);
  EXPECT_FALSE(pen.TimerRuns) << "a move beyond the band is no hold any more either";
}

INSTANTIATE_TEST_SUITE_P(Heights, MoveBand,
                         testing::Values(BandCase{-1, 5}, BandCase{0, 5}, BandCase{1, 0},
                                         BandCase{214, 13}, BandCase{215, 5}, BandCase{300, 5}));

TEST(TapMachine, ADragBeyondTheLastRowSelectsUpToWhereItLeftThem) {
  Pen pen;
  pen.List = Page(4);
  pen.Feed(Press(2));
  pen.Feed(Move(3));
  EXPECT_EQ(pen.Feed(Move(4)).Action, TapAction::None);
  EXPECT_EQ(pen.List.SelectedKeys, (Keys{102, 103}));
  EXPECT_EQ(pen.Feed(Release(6)).Action, TapAction::EndRun);
}

TEST(TapMachine, APopupBelongsWhereThePenWasPressed) {
  Pen pen;
  pen.Feed({PenStep::Press, 37, 61});
  pen.Feed({PenStep::Move, 40, 70});
  EXPECT_EQ(
      pen.Feed(kHold),
      (TapIntention{
          .Action = TapAction::ShowPopup, .Timer = TapTimer::Stop, .Row = 2, .At = {61, 37}}));
}

TEST(TapMachine, ATapBelongsToItsMemoByPosition) {
  Pen pen;
  pen.List.Mode = ViewMode::ByMemo;
  pen.List.Total = 40;
  pen.List.Top = 20;
  pen.Feed(Press(3));
  EXPECT_EQ(pen.List.SelectedKeys, Keys{23});
  pen.Feed(Move(4));
  EXPECT_EQ(pen.List.SelectedKeys, (Keys{23, 24}));
}

// Another contact comes to stand under the pen.
class ShiftedPage : public testing::TestWithParam<PenStep> {};

TEST_P(ShiftedPage, EndsTheGestureWithoutActing) {
  Pen pen;
  pen.Feed(Press(2));
  pen.List.Rows[2].Oid = 7;
  EXPECT_EQ(pen.Feed(GetParam()).Action, TapAction::None);
  EXPECT_FALSE(pen.TimerRuns);
  pen.List.Rows[2].Oid = 102;
  EXPECT_EQ(pen.Feed(Release(2)).Action, TapAction::None);
}

INSTANTIATE_TEST_SUITE_P(Steps, ShiftedPage, testing::Values(Move(3), Release(2), kHold));

TEST(TapMachine, AGestureWhoseRowIsGoneActsOnNothing) {
  Pen pen;
  pen.Feed(Press(5));
  pen.List.RowsShown = 3;
  EXPECT_EQ(pen.Feed(Release(5)).Action, TapAction::None);
}

}  // namespace
}  // namespace quill
