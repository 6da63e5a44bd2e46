#include "list/ui/CategoryLabel.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QImage>

#include "ViewFixture.h"
#include "platform_ui/AccessibleChild.h"

namespace quill {
namespace {

class CategoryLabelTest : public test::ViewFixture {
 protected:
  QPoint InView(int x, int y) { return View().mapTo(m_screen, QPoint(x, y)); }
  // Whether this opens a menu, which is dismissed.
  template <typename Action>
  bool OpensMenu(Action action) {
    bool opened = false;
    test::Steps steps(*m_screen, {[&] {
      opened = m_screen->Popup() != nullptr;
      m_screen->DropPopup();
    }});
    action();
    QCoreApplication::processEvents();  // the step runs here when no menu opened
    return opened;
  }
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
  bool Opens;
};

class CategoryTapTest : public CategoryLabelTest, public testing::WithParamInterface<TapCase> {};

TEST_P(CategoryTapTest, OpensTheMenuWithinItsArea) {
  Open();
  EXPECT_EQ(OpensMenu([this] { m_input.Tap(InView(GetParam().X, GetParam().Y)); }),
            GetParam().Opens);
}

INSTANTIATE_TEST_SUITE_P(Corners, CategoryTapTest,
                         testing::Values(TapCase{156, 1, true}, TapCase{234, 24, true},
                                         TapCase{155, 12, false}, TapCase{235, 12, false},
                                         TapCase{200, 0, false}, TapCase{200, 25, false}));

TEST_F(CategoryLabelTest, IsAButtonToAssistiveTechnology) {
  Open();
  test::AccessibleChild label(CategoryLabel(), u"Category: Show All");
  EXPECT_EQ(label.Role(), QAccessible::PushButton);
  EXPECT_TRUE(OpensMenu([&label] { label.Press(); }));
}

TEST_F(CategoryLabelTest, ByMemoATapOpensNothing) {
  Open();
  View().ShowMode(ViewMode::ByMemo);
  EXPECT_FALSE(OpensMenu([this] { m_input.Tap(InView(200, 12)); }));
}

TEST_F(CategoryLabelTest, ItsBackgroundIsTheViews) {
  Open();
  const QImage picture = View().grab().toImage();
  EXPECT_EQ(picture.pixelColor(153, 4), picture.pixelColor(237, 4));
}

}  // namespace
}  // namespace quill
