#include "store/CategoryChoice.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

const QStringList kOffered = {u"Work"_qs, u"Club"_qs, u"No Categories"_qs};

// The items as one text, a star before each that is checked.
std::string Text(const CategoryItems& items) {
  QStringList texts;
  for (const CheckListItem& item : items)
    texts.append((item.Checked ? u"*"_qs : QString()) + item.Text);
  return texts.join(u'|').toStdString();
}

TEST(CategoryChoice, TheNamesHandedInAreChecked) {
  EXPECT_EQ(Text(CheckedCategories(u"Work,  Old Friends,")), "*Work|*Old Friends");
  EXPECT_EQ(Text(CheckedCategories(u"")), "");
}

struct OfferCase {
  const char16_t* Names;
  const char* Items;
};

class OfferedCategoryItems : public testing::TestWithParam<OfferCase> {};

TEST_P(OfferedCategoryItems, AreTheLibrarysAndThenThoseItLacks) {
  EXPECT_EQ(Text(OfferCategories(kOffered, CheckedCategories(GetParam().Names))), GetParam().Items);
}

INSTANTIATE_TEST_SUITE_P(Names, OfferedCategoryItems,
                         testing::Values(OfferCase{u"", "Work|Club|No Categories"},
                                         OfferCase{u"Club", "Work|*Club|No Categories"},
                                         OfferCase{u"Club, Work", "*Work|*Club|No Categories"},
                                         OfferCase{u"B,Work,A", "*Work|Club|No Categories|*B|*A"},
                                         OfferCase{u"A, A", "Work|Club|No Categories|*A"},
                                         OfferCase{u"work", "Work|Club|No Categories|*work"},
                                         OfferCase{u"No Categories", "Work|Club|*No Categories"}));

TEST(CategoryChoice, OfferedAnewItKeepsItsChecksAndTheNamesTheLibraryLacks) {
  const CategoryItems before = {{u"Work"_qs, true}, {u"Club"_qs}, {u"A"_qs}, {u"B"_qs, true}};
  EXPECT_EQ(Text(OfferCategories({u"New"_qs, u"B"_qs, u"Work"_qs}, before)), "New|*B|*Work|Club|A");
}

TEST(CategoryChoice, AnAddedOneIsCheckedAlsoWhenItWasListedWithout) {
  const CategoryItems before = {{u"Work"_qs}, {u"Other"_qs}};
  EXPECT_EQ(Text(OfferCategories({u"Work"_qs, u"New"_qs}, WithCategory(before, u"New"_qs))),
            "Work|*New|Other");
  EXPECT_EQ(Text(OfferCategories({u"Work"_qs, u"Other"_qs}, WithCategory(before, u"Other"_qs))),
            "Work|*Other");
}

TEST(CategoryChoice, ARenamedOneKeepsItsCheck) {
  const CategoryItems before = {{u"Work"_qs, true}, {u"Club"_qs}};
  EXPECT_EQ(Text(WithCategoryRenamed(before, u"Work"_qs, u"Job"_qs)), "*Job|Club");
  EXPECT_EQ(Text(WithCategoryRenamed(before, u"Club"_qs, u"Job"_qs)), "*Work|Job");
}

TEST(CategoryChoice, OneRenamedToANameThatWasListedIsOneAndCheckedIfEitherWas) {
  const CategoryItems before = {{u"Work"_qs, true}, {u"Other"_qs}};
  EXPECT_EQ(
      Text(OfferCategories({u"Other"_qs}, WithCategoryRenamed(before, u"Work"_qs, u"Other"_qs))),
      "*Other");
}

TEST(CategoryChoice, ARemovedOneIsGone) {
  const CategoryItems before = {{u"Work"_qs, true}, {u"Club"_qs}, {u"Work"_qs}};
  EXPECT_EQ(Text(WithoutCategory(before, u"Work"_qs)), "Club");
}

struct ChoiceCase {
  std::vector<int> Checked;
  QString Names;
  std::vector<int> Positions;
};

class ChosenCategoryItems : public testing::TestWithParam<ChoiceCase> {};

TEST_P(ChosenCategoryItems, AreTheirNamesAndTheirPositionsWithAnEnd) {
  CategoryItems items;
  for (int i = 0; i < 40; ++i) items.push_back({u"C%1"_qs.arg(i)});
  for (const int position : GetParam().Checked) items[position].Checked = true;
  const CategoryChoice choice = ChosenCategories(items);
  EXPECT_EQ(choice.Names, GetParam().Names);
  EXPECT_EQ(choice.Positions, GetParam().Positions);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, ChosenCategoryItems,
    testing::Values(ChoiceCase{{}, QString(), {35}}, ChoiceCase{{0}, u"C0"_qs, {0, 35}},
                    ChoiceCase{{2, 0, 7}, u"C0,C2,C7"_qs, {0, 2, 7, 35}},
                    ChoiceCase{{1, 35, 39}, u"C1,C35,C39"_qs, {1, 35, 39, 35}}));

TEST(CategoryChoice, ARemovalSaysHowManyContactsItConcerns) {
  EXPECT_EQ(CategoryRemovalQuestion(u"Work"_qs, 0),
            u"No contact has the category \"Work\". Remove it from the list?"_qs);
  EXPECT_EQ(CategoryRemovalQuestion(u"Work"_qs, 1),
            u"1 contact has the category \"Work\". Remove it from the contact and the list?"_qs);
  EXPECT_EQ(CategoryRemovalQuestion(u"100%2"_qs, 3),
            u"3 contacts have the category \"100%2\". Remove it from them and the list?"_qs);
}

TEST(CategoryChoice, ALongNameEndsWithDotsInTheTextsThatHoldIt) {
  const QString longest(60, u'x');
  EXPECT_TRUE(CategoryRemovalQuestion(longest, 0).contains(u'"' + longest + u'"'));
  const QString shortened = u'"' + longest + u"...\""_qs;
  for (const int contacts : {0, 1, 2})
    EXPECT_TRUE(CategoryRemovalQuestion(longest + u'x', contacts).contains(shortened)) << contacts;
  for (const CategoryEdit edit : {CategoryEdit::NotAName, CategoryEdit::ExistsAlready})
    EXPECT_TRUE(CategoryEditRefusal(edit, longest + u'x').contains(shortened));
  const QString pair = u"\U0001F600"_qs;
  EXPECT_TRUE(CategoryRemovalQuestion(longest.first(59) + pair, 0).contains(u"xx...\""))
      << "a character is not cut in two";
}

TEST(CategoryChoice, AnEditThatIsNotDoneIsExplained) {
  EXPECT_EQ(CategoryEditRefusal(CategoryEdit::Done, u"A"_qs), QString());
  EXPECT_EQ(CategoryEditRefusal(CategoryEdit::NotAName, u"A,B"_qs),
            u"\"A,B\" cannot be a category: a name has no comma and is none of \"Show All\", "
            "\"No Categories\" and \"More...\"."_qs);
  EXPECT_EQ(CategoryEditRefusal(CategoryEdit::ExistsAlready, u"A"_qs),
            u"There is a category \"A\" already."_qs);
  EXPECT_EQ(CategoryEditRefusal(CategoryEdit::NotWritten, u"A"_qs),
            u"The categories cannot be saved now. They stay as they are."_qs);
}

}  // namespace
}  // namespace quill
