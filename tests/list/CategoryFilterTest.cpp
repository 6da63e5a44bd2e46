#include "list/CategoryFilter.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

ListState Choosing(const QString& category) {
  ListState list;
  list.CategoryName = category;
  return list;
}

TEST(CategoryFilter, EveryContactPassesWhileNoCategoryIsChosen) {
  const ListState list;
  EXPECT_FALSE(IsCategoryChosen(list));
  EXPECT_TRUE(PassesCategoryFilter(list, QStringLiteral("Work")));
  EXPECT_TRUE(PassesCategoryFilter(list, QString()));
}

struct ChoiceCase {
  const char16_t* Chosen;
  const char16_t* Categories;
  bool Passes;
};

class CategoryChoiceTest : public testing::TestWithParam<ChoiceCase> {};

TEST_P(CategoryChoiceTest, LetsThroughWhoIsInAnyChosenCategory) {
  EXPECT_EQ(PassesCategoryFilter(Choosing(QString::fromUtf16(GetParam().Chosen)),
                                 QString::fromUtf16(GetParam().Categories)),
            GetParam().Passes)
      << QString::fromUtf16(GetParam().Categories).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Choices, CategoryChoiceTest,
                         testing::Values(ChoiceCase{u"Friends", u"Work, Friends", true},
                                         ChoiceCase{u"Friends", u"Friends", true},
                                         ChoiceCase{u"Friends", u"friends", false},
                                         ChoiceCase{u"Friends", u"Friendship", false},
                                         ChoiceCase{u"Friends", u"", false},
                                         ChoiceCase{u"Work,Home", u"Friends, Home", true},
                                         ChoiceCase{u"Work,Home", u"Friends", false},
                                         ChoiceCase{u"No Categories", u"", true},
                                         ChoiceCase{u"No Categories", u"Work", false},
                                         ChoiceCase{u"", u"", true},
                                         ChoiceCase{u"", u"Work", false}));

TEST(CategoryFilter, AChoiceOfSeveralNeverMatchesTextsThatAreTooLong) {
  const QString chosen = QStringLiteral("Work,Home");
  const QString longest = QStringLiteral("Work,") + QString(kSeveralCategoriesLimit - 5, u'x');
  EXPECT_TRUE(PassesCategoryFilter(Choosing(chosen), longest));
  EXPECT_FALSE(PassesCategoryFilter(Choosing(chosen), longest + u'x'));
  EXPECT_TRUE(PassesCategoryFilter(Choosing(longest), QStringLiteral("Work")));
  EXPECT_FALSE(PassesCategoryFilter(Choosing(longest + u'x'), QStringLiteral("Work")));
}

TEST(CategoryFilter, AChoiceOfOneMatchesATextOfAnyLength) {
  const QString categories = QStringLiteral("Work,") + QString(kSeveralCategoriesLimit, u'x');
  EXPECT_TRUE(PassesCategoryFilter(Choosing(QStringLiteral("Work")), categories));
}

struct FollowCase {
  const char16_t* Chosen;
  int Count;
  const char16_t* From;
  const char16_t* To;  // empty: it is removed
  const char16_t* After;
  int CountAfter;
};

class FollowedCategory : public testing::TestWithParam<FollowCase> {};

TEST_P(FollowedCategory, IsChosenByItsNewNameOrNoLonger) {
  const FollowCase& change = GetParam();
  ListState list = Choosing(QString::fromUtf16(change.Chosen));
  list.CategoryCount = change.Count;
  list.Filter = FilterKind::Category;
  FollowCategory(list, QString::fromUtf16(change.From), QString::fromUtf16(change.To));
  EXPECT_EQ(list.CategoryName, QString::fromUtf16(change.After));
  EXPECT_EQ(list.CategoryCount, change.CountAfter);
  EXPECT_EQ(list.Filter, FilterKind::Category);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, FollowedCategory,
    testing::Values(FollowCase{u"Work", 1, u"Work", u"Job", u"Job", 1},
                    FollowCase{u"Work", 1, u"Wor", u"Job", u"Work", 1},
                    FollowCase{u"Work,Club", 2, u"Club", u"Job", u"Work,Job", 2},
                    FollowCase{u"Work,Club", 0, u"Club", u"Job", u"Work,Job", 0},
                    FollowCase{u"Work,Club", 0, u"Golf", u"", u"Work,Club", 0},
                    FollowCase{u"Work,Club,Golf", 3, u"Club", u"", u"Work,Golf", 2},
                    FollowCase{u"Work,Club", 2, u"Work", u"", u"Club", 1},
                    FollowCase{u"Work", 1, u"Work", u"", u"Show All", 1},
                    FollowCase{u"Show All", 1, u"Work", u"", u"Show All", 1}));

}  // namespace
}  // namespace quill
