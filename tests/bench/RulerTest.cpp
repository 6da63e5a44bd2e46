#include "bench/Ruler.h"

#include <gtest/gtest.h>

namespace quill::bench {
namespace {

constexpr auto kDone = [] { return true; };
constexpr auto kFailed = [] { return false; };

TEST(Ruler, RunsTheUnitBeforeEachRun) {
  QString order;
  const auto write = [&order](QChar sign) {
    return [&order, sign] {
      order += sign;
      return true;
    };
  };
  Ruler ruler;
  ruler.SetUnit(Unit::Page, QStringLiteral("unit"), write(u'p'), write(u'u'));
  const int row = ruler.AddRow(QStringLiteral("row"), u"2 P", Unit::Page);
  ruler.Run(row, write(u'r'));
  ruler.Run(row, write(u's'));
  EXPECT_EQ(order, QStringLiteral("purpus"));
}

TEST(Ruler, PlainTimeHasNoUnit) {
  Ruler ruler;
  const int row = ruler.AddRow(QStringLiteral("open"), u"16 ms", Unit::None);
  ruler.Run(row, kDone);
  ASSERT_EQ(ruler.Measures().size(), 1U);
  const Measure measure = ruler.Measures().front();
  EXPECT_EQ(measure.What, QStringLiteral("open"));
  EXPECT_EQ(measure.Aim, QStringLiteral("16 ms"));
  EXPECT_FALSE(measure.Value.contains(u','));
}

TEST(Ruler, ARowIsGivenInItsUnitAndInTime) {
  Ruler ruler;
  ruler.SetUnit(Unit::Commit, QStringLiteral("unit"), kDone, kDone);
  const int row = ruler.AddRow(QStringLiteral("insert"), {}, Unit::Commit);
  ruler.Run(row, kDone);
  const std::vector<Measure> measures = ruler.Measures();
  ASSERT_EQ(measures.size(), 2U) << "the unit is a row, too";
  EXPECT_EQ(measures[0].What, QStringLiteral("unit"));
  EXPECT_TRUE(measures[1].Value.contains(QStringLiteral(" C, ")));
}

TEST(Ruler, NothingRunsAfterAFailure) {
  Ruler ruler;
  const int row = ruler.AddRow(QStringLiteral("build"), {}, Unit::None);
  const int other = ruler.AddRow(QStringLiteral("find"), {}, Unit::None);
  ruler.Run(row, kDone);
  EXPECT_EQ(ruler.Failure(), QString());
  ruler.Run(row, kFailed);
  int runs = 0;
  ruler.Run(other, [&runs] { return ++runs > 0; });
  ruler.Do(QStringLiteral("names"), kFailed);
  EXPECT_EQ(runs, 0);
  EXPECT_EQ(ruler.Failure(), QStringLiteral("build"));
}

TEST(Ruler, AFailingUnitIsAFailure) {
  Ruler ruler;
  ruler.SetUnit(Unit::Page, QStringLiteral("unit"), kDone, kFailed);
  ruler.Run(ruler.AddRow(QStringLiteral("row"), {}, Unit::Page), kDone);
  EXPECT_EQ(ruler.Failure(), QStringLiteral("unit"));
}

}  // namespace
}  // namespace quill::bench
