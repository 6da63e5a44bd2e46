// A popup menu by the keyboard.
#include "platform/ui/MenuPopup.h"

#include <QLineEdit>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

std::vector<MenuItem> Colours() {
  return {{.Text = QStringLiteral("Red"), .Id = 1},
          {.Text = QStringLiteral("Rose"), .Id = 2, .Enabled = false},
          {.Enabled = false, .Separator = true},
          {.Text = QStringLiteral("Blue"), .Id = 3},
          {.Text = QStringLiteral("More"),
           .Items = {{.Text = QStringLiteral("Grey"), .Id = 41},
                     {.Text = QStringLiteral("Black"), .Id = 42}}},
          {.Text = QStringLiteral("Rust"), .Id = 5}};
}

struct KeysCase {
  const char* Name;
  std::vector<int> Keys;
  int Chosen;  // 0: dismissed
};

class MenuKeysTest : public test::ScreenFixture, public testing::WithParamInterface<KeysCase> {};

TEST_P(MenuKeysTest, EndTheMenuWithTheirItem) {
  std::vector<Step> steps;
  for (const int key : GetParam().Keys) steps.push_back([=, this] { m_input.Key(key); });
  const Steps running(*m_screen, std::move(steps));
  EXPECT_EQ(m_screen->TrackMenu({10, 10}, Colours()), GetParam().Chosen);
}

std::string KeysName(const testing::TestParamInfo<KeysCase>& info) { return info.param.Name; }

INSTANTIATE_TEST_SUITE_P(
    UpAndDown, MenuKeysTest,
    testing::Values(
        KeysCase{"DownTakesTheFirst", {Qt::Key_Down, Qt::Key_Return}, 1},
        KeysCase{"DownSkipsDisabledAndSeparator", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, 3},
        KeysCase{"UpTakesTheLast", {Qt::Key_Up, Qt::Key_Space}, 5},
        KeysCase{"DownWraps", {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return}, 1},
        KeysCase{"UpWraps", {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}, 5},
        KeysCase{"HomeTakesTheFirst", {Qt::Key_Up, Qt::Key_Home, Qt::Key_Return}, 1},
        KeysCase{"EndTakesTheLast", {Qt::Key_Down, Qt::Key_End, Qt::Key_Return}, 5}),
    KeysName);
INSTANTIATE_TEST_SUITE_P(
    Submenu, MenuKeysTest,
    testing::Values(
        KeysCase{"RightOpensIt",
                 {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return},
                 41},
        KeysCase{"ReturnOpensIt", {Qt::Key_M, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return}, 42},
        KeysCase{"LeftClosesIt",
                 {Qt::Key_M, Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Return},
                 5},
        KeysCase{"EscapeClosesItAlone",
                 {Qt::Key_M, Qt::Key_Right, Qt::Key_Escape, Qt::Key_Down, Qt::Key_Return},
                 5}),
    KeysName);
INSTANTIATE_TEST_SUITE_P(
    Letters, MenuKeysTest,
    testing::Values(
        KeysCase{"ALetterTakesTheNextItemItBegins", {Qt::Key_B, Qt::Key_Return}, 3},
        KeysCase{"DisabledItemsArePassedOver", {Qt::Key_R, Qt::Key_R, Qt::Key_Return}, 5},
        KeysCase{"TheLastWrapsToTheFirst", {Qt::Key_R, Qt::Key_R, Qt::Key_R, Qt::Key_Return}, 1},
        KeysCase{"ALetterThatBeginsNothingIsIgnored", {Qt::Key_B, Qt::Key_X, Qt::Key_Return}, 3}),
    KeysName);
INSTANTIATE_TEST_SUITE_P(
    Dismissing, MenuKeysTest,
    testing::Values(KeysCase{"Escape", {Qt::Key_Down, Qt::Key_Escape}, 0},
                    KeysCase{"F10", {Qt::Key_Down, Qt::Key_F10}, 0},
                    KeysCase{"Alt", {Qt::Key_Down, Qt::Key_Alt}, 0},
                    KeysCase{"Menu", {Qt::Key_Down, Qt::Key_Menu}, 0},
                    KeysCase{"ReturnOnNoItem", {Qt::Key_Return, Qt::Key_Escape}, 0}),
    KeysName);

class MenuArrowsTest : public test::ScreenFixture {};

TEST_F(MenuArrowsTest, AMenuOnItsOwnIgnoresThemWhereThereIsNoSubmenu) {
  const Steps steps(
      *m_screen, {[this] { m_input.Key(Qt::Key_Down); }, [this] { m_input.Key(Qt::Key_Right); },
                  [this] { m_input.Key(Qt::Key_Left); }, [this] { m_input.Key(Qt::Key_Return); }});
  EXPECT_EQ(m_screen->TrackMenu({10, 10}, Colours()), 1);
}

TEST_F(MenuArrowsTest, AMenuOfTheBarIsLeftByThem) {
  for (const auto& [key, direction] : {std::pair{Qt::Key_Left, -1}, {Qt::Key_Right, 1}}) {
    CMenuPopup menu(*m_screen, Colours(), {0, 296, 30, 24}, MenuPopupKind::OfMenuBar);
    const Steps steps(*m_screen, {[this, key = key] { m_input.Key(key); }});
    EXPECT_EQ(menu.Track(), 0);
    EXPECT_EQ(menu.LeftBy(), direction);
  }
}

class MenuOverEditorTest : public test::ScreenFixture {
 protected:
  MenuOverEditorTest() : m_frame(*m_screen), m_editor(QStringLiteral("Kim"), &m_frame) {
    m_editor.show();
    m_editor.setFocus();
    m_editor.deselect();
  }

  test::SampleFrame m_frame;
  QLineEdit m_editor;
};

TEST_F(MenuOverEditorTest, TabStaysInTheMenu) {
  const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_Tab); },
                                [this] {
                                  EXPECT_FALSE(m_editor.hasFocus());
                                  m_screen->Popup()->Dismiss();
                                }});
  m_screen->TrackMenu({10, 40}, Colours());
}

TEST_F(MenuOverEditorTest, TheEditorHasItsFocusAndItsSelectionBackAfterwards) {
  const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_Escape); }});
  m_screen->TrackMenu({10, 40}, Colours());
  EXPECT_TRUE(m_editor.hasFocus());
  EXPECT_TRUE(m_editor.selectedText().isEmpty());
}

}  // namespace
}  // namespace quill
