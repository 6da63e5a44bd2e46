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

}  // namespace
}  // namespace quill
