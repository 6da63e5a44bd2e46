#include "list/ui/CategoryLabel.h"

#include <QAccessible>
#include <QImage>

#include "ViewFixture.h"
#include "platform_ui/AccessibleChild.h"

namespace quill {
namespace {

class CategoryLabelTest : public test::ViewFixture {
 protected:
  CategoryLabelTest() {
    View().CategoryMenuAsked = [this] { ++m_taps; };
  }

  QPoint InView(int x, int y) { return View().mapTo(m_screen, QPoint(x, y)); }

  int m_taps = 0;
};

TEST_F(CategoryLabelTest, ShowsTheChosenCategory) {
  Open();
  EXPECT_EQ(CategoryLabel().Rows()[0].Items[0].Text, QStringLiteral("Show All"));
  g_list.CategoryName = QStringLiteral("Work");
  View().Rebuild();
  EXPECT_EQ(CategoryLabel().Rows()[0].Items[0].Text, QStringLiteral("Work"));
}

struct TapCase {
  int X;
  int Y;
  int Taps;
};

class CategoryTapTest : public CategoryLabelTest, public testing::WithParamInterface<TapCase> {};

TEST_P(CategoryTapTest, AsksForTheMenuWithinItsArea) {
  Open();
  m_input.Tap(InView(GetParam().X, GetParam().Y));
  EXPECT_EQ(m_taps, GetParam().Taps);
}

INSTANTIATE_TEST_SUITE_P(Corners, CategoryTapTest,
                         testing::Values(TapCase{156, 1, 1}, TapCase{234, 24, 1},
                                         TapCase{155, 12, 0}, TapCase{235, 12, 0},
                                         TapCase{200, 0, 0}, TapCase{200, 25, 0}));

TEST_F(CategoryLabelTest, IsAButtonToAssistiveTechnology) {
  Open();
  test::AccessibleChild label(CategoryLabel(), u"Category: Show All");
  EXPECT_EQ(label.Role(), QAccessible::PushButton);
  label.Press();
  EXPECT_EQ(m_taps, 1);
}

TEST_F(CategoryLabelTest, WithoutAMenuATapDoesNothing) {
  Open();
  View().CategoryMenuAsked = nullptr;
  m_input.Tap(InView(200, 12));
  EXPECT_EQ(m_taps, 0);
  EXPECT_EQ(g_list.CategoryName, QStringLiteral("Show All"));
}

TEST_F(CategoryLabelTest, ItsBackgroundIsTheViews) {
  Open();
  const QImage picture = View().grab().toImage();
  EXPECT_EQ(picture.pixelColor(153, 4), picture.pixelColor(237, 4));
}

}  // namespace
}  // namespace quill
