#include "list/CategoryLabelLayout.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

double FiveEach(QStringView text) { return 5.0 * static_cast<double>(text.size()); }

struct LabelCase {
  QString Category;
  int Count;
  QString Text;
  TextAlign Alignment;
};

class CategoryLabel : public testing::TestWithParam<LabelCase> {};

TEST_P(CategoryLabel, NamesTheChoiceAtItsEndOfTheLabel) {
  ListState list;
  list.CategoryName = GetParam().Category;
  list.CategoryCount = GetParam().Count;
  const PaintedRow row = LayOutCategoryLabel(list, FiveEach);
  ASSERT_EQ(row.Items.size(), 1U);
  EXPECT_EQ(row.Items[0].Text, GetParam().Text);
  EXPECT_EQ(row.Items[0].Alignment, GetParam().Alignment);
  EXPECT_EQ(row.SpokenName, QStringLiteral("Category: ") + GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, CategoryLabel,
    testing::Values(
        LabelCase{QStringLiteral("Show All"), 1, QStringLiteral("Show All"), TextAlign::Right},
        LabelCase{QStringLiteral("Business"), 1, QStringLiteral("Business"), TextAlign::Right},
        LabelCase{QStringLiteral("Relatives"), 1, QStringLiteral("Relatives"), TextAlign::Left},
        LabelCase{QStringLiteral("친구"), 1, QStringLiteral("친구"), TextAlign::Right},
        LabelCase{QStringLiteral("A,B"), 2, QStringLiteral("Multi"), TextAlign::Right},
        LabelCase{QStringLiteral("Work,Friends"), 2, QStringLiteral("Multi"), TextAlign::Right},
        LabelCase{QStringLiteral("Work"), 0, QStringLiteral("Multi"), TextAlign::Right}));

TEST(CategoryLabelLayout, ANameThatIsTooWideEndsWithDotsAndIsSpokenWhole) {
  ListState list;
  list.CategoryName = QString(15, u'x');
  const PaintedRow row = LayOutCategoryLabel(list, FiveEach);
  EXPECT_EQ(row.Items[0].Text, QString(11, u'x') + QStringLiteral("..."));
  EXPECT_EQ(row.SpokenName, QStringLiteral("Category: ") + list.CategoryName);
}

TEST(CategoryLabelLayout, TextAndTapAreaHaveTheirPlacesInTheView) {
  const PaintedRow row = LayOutCategoryLabel(ListState(), FiveEach);
  const QPoint origin = kCategoryLabelArea.topLeft();
  EXPECT_EQ(row.Rectangle.translated(origin), QRect(QPoint(156, 1), QPoint(234, 24)));
  EXPECT_EQ(row.Items[0].Rectangle.translated(origin), QRect(152, 2, 225 - 152, 22 - 2));
  EXPECT_EQ(row.Role, PaintedRole::Button);
  const QRect label(QPoint(0, 0), kCategoryLabelArea.size());
  EXPECT_TRUE(label.contains(row.Rectangle));
  EXPECT_TRUE(label.contains(row.Items[0].Rectangle));
}

}  // namespace
}  // namespace quill
