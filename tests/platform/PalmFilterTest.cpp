#include "platform/PalmFilter.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(PalmFilter, TouchCountsWhereNoPenWasEverSeen) { EXPECT_TRUE(PalmFilter().AcceptsTouch(0)); }

TEST(PalmFilter, TouchIsIgnoredHoweverLongThePenStaysNear) {
  PalmFilter filter;
  filter.PenNear();
  EXPECT_FALSE(filter.AcceptsTouch(0));
  EXPECT_FALSE(filter.AcceptsTouch(3'600'000));
}

TEST(PalmFilter, TouchIsIgnoredForHalfASecondAfterThePenWent) {
  PalmFilter filter;
  filter.PenNear();
  filter.PenAway(1000);
  EXPECT_FALSE(filter.AcceptsTouch(1000));
  EXPECT_FALSE(filter.AcceptsTouch(1499));
  EXPECT_TRUE(filter.AcceptsTouch(1500));
}

TEST(PalmFilter, APenThatComesBackStartsAnew) {
  PalmFilter filter;
  filter.PenNear();
  filter.PenAway(1000);
  filter.PenNear();
  EXPECT_FALSE(filter.AcceptsTouch(5000));
  filter.PenAway(6000);
  EXPECT_FALSE(filter.AcceptsTouch(6499));
  EXPECT_TRUE(filter.AcceptsTouch(6500));
}

TEST(PalmFilter, ASecondNoticeThatThePenWentDoesNotLengthenTheDelay) {
  PalmFilter filter;
  filter.PenNear();
  filter.PenAway(1000);
  filter.PenAway(1400);
  EXPECT_TRUE(filter.AcceptsTouch(1500));
}

TEST(PalmFilter, APenThatGoesWithoutHavingComeDoesNothing) {
  PalmFilter filter;
  filter.PenAway(1000);
  EXPECT_TRUE(filter.AcceptsTouch(1000));
}

}  // namespace
}  // namespace quill
