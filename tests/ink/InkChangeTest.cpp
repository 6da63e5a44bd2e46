#include "ink/InkChange.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quill {
namespace {

InkStrokePtr Dot(int x) { return SealInkStroke({.Points = {{.X = x, .Y = 2 * x}}}); }

std::vector<InkStrokePtr> Dots(int count) {
  std::vector<InkStrokePtr> dots;
  dots.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) dots.push_back(Dot(i));
  return dots;
}

std::vector<int> Places(const std::vector<InkStrokePtr>& dots) {
  std::vector<int> places;
  std::ranges::transform(dots, std::back_inserter(places),
                         [](const InkStrokePtr& dot) { return dot->Points[0].X; });
  return places;
}

struct StrokesChange {
  const char* Name;
  std::vector<std::pair<std::size_t, int>> Removed;
  std::vector<std::pair<std::size_t, int>> Added;
  std::vector<std::size_t> Shifted;
  std::vector<int> After;
};

InkChange ChangeOf(const StrokesChange& row) {
  InkChange change{.Shifted = {row.Shifted, QPoint(100, 7)}};
  for (const auto& [index, x] : row.Removed) change.Removed.push_back({index, Dot(x)});
  for (const auto& [index, x] : row.Added) change.Added.push_back({index, Dot(x)});
  return change;
}

class InkChangeOfStrokes : public testing::TestWithParam<StrokesChange> {};

TEST_P(InkChangeOfStrokes, IsCarriedOutAndTurnedRound) {
  std::vector<InkStrokePtr> strokes = Dots(4);
  const InkChange change = ChangeOf(GetParam());
  ApplyStrokes(strokes, change);
  EXPECT_EQ(Places(strokes), GetParam().After);
  ApplyStrokes(strokes, Reversed(change));
  EXPECT_EQ(Places(strokes), Places(Dots(4)));
  EXPECT_EQ(*strokes[2], *Dot(2));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, InkChangeOfStrokes,
    testing::Values(StrokesChange{"OneOnTop", {}, {{4, 9}}, {}, {0, 1, 2, 3, 9}},
                    StrokesChange{"OneAtTheBottom", {}, {{0, 9}}, {}, {9, 0, 1, 2, 3}},
                    StrokesChange{"SomeBetween", {}, {{1, 8}, {3, 9}}, {}, {0, 8, 1, 9, 2, 3}},
                    StrokesChange{"SomeOnTop", {}, {{4, 8}, {5, 9}}, {}, {0, 1, 2, 3, 8, 9}},
                    StrokesChange{"SomeGo", {{0, 0}, {2, 2}}, {}, {}, {1, 3}},
                    StrokesChange{"AllGo", {{0, 0}, {1, 1}, {2, 2}, {3, 3}}, {}, {}, {}},
                    StrokesChange{"OneForAnother", {{1, 1}}, {{1, 9}}, {}, {0, 9, 2, 3}},
                    StrokesChange{"TheTopForAnother", {{3, 3}}, {{3, 9}}, {}, {0, 1, 2, 9}},
                    StrokesChange{"SomeElsewhere", {}, {}, {1, 3}, {0, 101, 2, 103}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkChange, AShiftedStrokeGoesWhole) {
  std::vector<InkStrokePtr> strokes = Dots(2);
  ApplyStrokes(strokes, {.Shifted = {{1}, QPoint(100, 7)}});
  EXPECT_EQ(*strokes[1], *SealInkStroke({.Points = {{.X = 101, .Y = 9}}}));
}

TEST(InkChange, TextIsTurnedRound) {
  const InkTextChange text{.At = 3,
                           .Removed = QStringLiteral("ab"),
                           .Inserted = QStringLiteral("c"),
                           .Before = {.X = 1},
                           .After = {.X = 2},
                           .CaretBefore = 5,
                           .CaretAfter = 4};
  const InkChange reversed = Reversed({.Text = text});
  ASSERT_TRUE(reversed.Text);
  EXPECT_EQ(reversed.Text->At, 3);
  EXPECT_EQ(reversed.Text->Removed, text.Inserted);
  EXPECT_EQ(reversed.Text->Inserted, text.Removed);
  EXPECT_EQ(reversed.Text->Before.X, 2);
  EXPECT_EQ(reversed.Text->After.X, 1);
  EXPECT_EQ(reversed.Text->CaretBefore, 4);
  EXPECT_EQ(reversed.Text->CaretAfter, 5);
}

TEST(InkChange, AWholePageIsTurnedRound) {
  const InkChange reversed =
      Reversed({.Whole = std::pair(InkNote{.Page = {.Width = 1}}, InkNote{.Page = {.Width = 2}})});
  ASSERT_TRUE(reversed.Whole);
  EXPECT_EQ(reversed.Whole->first.Page.Width, 2U);
  EXPECT_EQ(reversed.Whole->second.Page.Width, 1U);
}

TEST(InkChange, OnlyAnEmptyOneIsNothing) {
  EXPECT_TRUE(InkChange{}.IsNothing());
  EXPECT_TRUE((InkChange{.Shifted = {.By = {3, 4}}}).IsNothing());
  EXPECT_FALSE((InkChange{.Removed = {{}}}).IsNothing());
  EXPECT_FALSE((InkChange{.Added = {{}}}).IsNothing());
  EXPECT_FALSE((InkChange{.Shifted = {.Indices = {0}}}).IsNothing());
  EXPECT_FALSE((InkChange{.Text = InkTextChange{}}).IsNothing());
  EXPECT_FALSE((InkChange{.Whole = std::pair(InkNote{}, InkNote{})}).IsNothing());
}

TEST(InkChange, PlacesAreThoseOfTheStrokesThatAreThere) {
  const InkNote note{.Strokes = Dots(4)};
  const std::vector<InkPlacedStroke> places =
      PlacesOf(note, {note.Strokes[3], Dot(0), note.Strokes[1]});
  ASSERT_EQ(places.size(), 2U);
  EXPECT_EQ(places[0].Index, 1U);
  EXPECT_EQ(places[0].Stroke, note.Strokes[1]);
  EXPECT_EQ(places[1].Index, 3U);
}

struct TwoTexts {
  const char* Name;
  int FirstAt;
  const char16_t* FirstRemoved;
  const char16_t* FirstInserted;
  int LaterAt;
  const char16_t* LaterRemoved;
  const char16_t* LaterInserted;
  bool IsJoined;
};

class InkTextChangesInARow : public testing::TestWithParam<TwoTexts> {};

InkTextChange TextChangeOf(int at, const char16_t* removed, const char16_t* inserted) {
  return {.At = at,
          .Removed = QString::fromUtf16(removed),
          .Inserted = QString::fromUtf16(inserted),
          .Before = {.X = at},
          .After = {.X = at + 1},
          .CaretBefore = at + 2,
          .CaretAfter = at + 3};
}

QString After(QString text, const InkTextChange& change) {
  EXPECT_EQ(text.mid(change.At, change.Removed.size()), change.Removed);
  return text.replace(change.At, change.Removed.size(), change.Inserted);
}

TEST_P(InkTextChangesInARow, AreOneWhereTheyTouch) {
  const TwoTexts& row = GetParam();
  const InkTextChange first = TextChangeOf(row.FirstAt, row.FirstRemoved, row.FirstInserted);
  const InkTextChange later = TextChangeOf(row.LaterAt, row.LaterRemoved, row.LaterInserted);
  const auto joined = Joined(first, later);
  ASSERT_EQ(joined.has_value(), row.IsJoined);
  if (!joined) return;
  const QString text = QStringLiteral("0123456789");
  EXPECT_EQ(After(text, *joined), After(After(text, first), later));
  EXPECT_EQ(joined->Before, first.Before);
  EXPECT_EQ(joined->After, later.After);
  EXPECT_EQ(joined->CaretBefore, first.CaretBefore);
  EXPECT_EQ(joined->CaretAfter, later.CaretAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, InkTextChangesInARow,
    testing::Values(TwoTexts{"TypedOn", 4, u"", u"ab", 6, u"", u"c", true},
                    TwoTexts{"TypedOnAfterReplacing", 4, u"45", u"a", 5, u"", u"bc", true},
                    TwoTexts{"TakenBack", 4, u"", u"ab", 5, u"b", u"", true},
                    TwoTexts{"TakenBackAndTypedAnew", 4, u"", u"ab", 5, u"b", u"c", true},
                    TwoTexts{"TakenBackBeyond", 4, u"", u"ab", 2, u"23ab", u"", true},
                    TwoTexts{"DeletedLeftwards", 4, u"4", u"", 3, u"3", u"", true},
                    TwoTexts{"DeletedRightwards", 4, u"4", u"", 4, u"5", u"", false},
                    TwoTexts{"TypedBefore", 4, u"", u"ab", 4, u"", u"c", false},
                    TwoTexts{"TypedWithin", 4, u"", u"ab", 5, u"", u"c", false},
                    TwoTexts{"TypedElsewhere", 4, u"", u"ab", 9, u"", u"c", false}),
    [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace quill
