#include "platform/ui/MenuPopup.h"

#include <QApplication>
#include <QLineEdit>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

constexpr QPoint kMenuPlace{40, 60};
constexpr QPoint kOutside{200, 280};

// "Apple" 1, "Pear" 2 (disabled), a separator, "Plum" 3, "More" with "Fig" 41 and "Lime" 42
// (disabled), "Grape" 5.
std::vector<MenuItem> Fruit() {
  return {{.Text = QStringLiteral("Apple"), .Id = 1},
          {.Text = QStringLiteral("Pear"), .Id = 2, .Enabled = false},
          {.Enabled = false, .Separator = true},
          {.Text = QStringLiteral("Plum"), .Id = 3},
          {.Text = QStringLiteral("More"),
           .Items = {{.Text = QStringLiteral("Fig"), .Id = 41},
                     {.Text = QStringLiteral("Lime"), .Id = 42, .Enabled = false}}},
          {.Text = QStringLiteral("Grape"), .Id = 5}};
}

class MenuPopupTest : public test::ScreenFixture {
 protected:
  int Track(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_screen->TrackMenu(kMenuPlace, Fruit());
  }

  // The submenu that is open; null when there is none.
  CMenuPopup* Submenu() const {
    for (CMenuPopup* menu : m_screen->findChildren<CMenuPopup*>())
      if (menu != m_screen->Popup() && menu->isVisible()) return menu;
    return nullptr;
  }

  QPoint At(const char16_t* item) const { return At(*m_screen->Popup(), item); }
  QPoint At(const CMenuPopup& menu, const char16_t* item) const {
    return RowNamed(menu, QString::fromUtf16(item)).center();
  }

  Step Pressing(const char16_t* item) {
    return [=, this] { m_input.Press(At(item)); };
  }
  Step MovingTo(const char16_t* item) {
    return [=, this] { m_input.Move(At(item)); };
  }
  Step ReleasingOn(const char16_t* item) {
    return [=, this] { m_input.Release(At(item)); };
  }
  Step Dismissing() {
    return [this] { m_screen->Popup()->Dismiss(); };
  }
};

TEST_F(MenuPopupTest, StandsAtItsPointInsideTheScreenAndKnowsItsItems) {
  Track({[this] {
           const CMenuPopup* menu = m_screen->Popup();
           ASSERT_NE(menu, nullptr);
           EXPECT_TRUE(menu->isVisible());
           EXPECT_EQ(menu->geometry().topLeft(), kMenuPlace);
           EXPECT_TRUE(m_screen->rect().contains(menu->geometry()));
           EXPECT_EQ(menu->Items().size(), Fruit().size());
         },
         Dismissing()});
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(MenuPopupTest, AReleaseOnTheItemOfThePressChoosesIt) {
  EXPECT_EQ(Track({Pressing(u"Plum"), ReleasingOn(u"Plum")}), 3);
}

TEST_F(MenuPopupTest, ADragChoosesTheItemOfTheRelease) {
  EXPECT_EQ(
      Track({Pressing(u"Apple"), MovingTo(u"Plum"), MovingTo(u"Grape"), ReleasingOn(u"Grape")}), 5);
}

TEST_F(MenuPopupTest, ADragOutOfTheMenuChoosesNothing) {
  EXPECT_EQ(
      Track({Pressing(u"Apple"), [this] { m_input.Move(kOutside); },
             [this] { m_input.Release(kOutside); },
             [this] { EXPECT_NE(m_screen->Popup(), nullptr) << "it stays open"; }, Dismissing()}),
      0);
}

TEST_F(MenuPopupTest, AReleaseWhosePressWasElsewhereChoosesNothing) {
  m_input.Press(kMenuPlace + QPoint(10, 5));  // before the menu opens under the pen
  EXPECT_EQ(Track({ReleasingOn(u"Apple"), [this] { EXPECT_NE(m_screen->Popup(), nullptr); },
                   Dismissing()}),
            0);
}

TEST_F(MenuPopupTest, APressOutsideDismissesAndIsRemembered) {
  CMenuPopup menu(*m_screen, Fruit(), QRect(kMenuPlace, QSize(0, 0)));
  const Steps steps(*m_screen, {[this] { m_input.Press(kOutside); }});
  EXPECT_EQ(menu.Track(), 0);
  EXPECT_EQ(menu.PressedOutsideAt(), kOutside);
}

TEST_F(MenuPopupTest, ADisabledItemAndASeparatorRefuseThePen) {
  EXPECT_EQ(Track({Pressing(u"Pear"), ReleasingOn(u"Pear"), Pressing(u""), ReleasingOn(u""),
                   [this] { EXPECT_NE(m_screen->Popup(), nullptr); }, Dismissing()}),
            0);
}

TEST_F(MenuPopupTest, APressOpensASubmenuBesideItsItemAndATapInItChooses) {
  EXPECT_EQ(Track({Pressing(u"More"), ReleasingOn(u"More"),
                   [this] {
                     const CMenuPopup* menu = Submenu();
                     ASSERT_NE(menu, nullptr);
                     EXPECT_EQ(menu->y(), RowNamed(*m_screen->Popup(), QStringLiteral("More")).y());
                     EXPECT_TRUE(m_screen->rect().contains(menu->geometry()));
                     m_input.Tap(At(*menu, u"Fig"));
                   }}),
            41);
}

TEST_F(MenuPopupTest, ADisabledSubmenuItemRefusesThePen) {
  EXPECT_EQ(Track({Pressing(u"More"), ReleasingOn(u"More"),
                   [this] { m_input.Tap(At(*Submenu(), u"Lime")); },
                   [this] { EXPECT_NE(Submenu(), nullptr); }, Dismissing()}),
            0);
}

TEST_F(MenuPopupTest, AnotherItemClosesTheSubmenu) {
  Track({Pressing(u"More"), ReleasingOn(u"More"), Pressing(u"Apple"),
         [this] { EXPECT_EQ(Submenu(), nullptr); }, Dismissing()});
}

TEST_F(MenuPopupTest, AnItemIsChosenById) {
  EXPECT_EQ(Track({[this] { EXPECT_TRUE(m_screen->Popup()->Choose(3)); }}), 3);
}

TEST_F(MenuPopupTest, AnItemOfASubmenuIsChosenByIdWithoutOpeningIt) {
  EXPECT_EQ(Track({[this] { EXPECT_TRUE(m_screen->Popup()->Choose(41)); }}), 41);
}

TEST_F(MenuPopupTest, DisabledAndUnknownIdsAreRefused) {
  EXPECT_EQ(Track({[this] {
                     for (const int id : {2, 42, 99}) EXPECT_FALSE(m_screen->Popup()->Choose(id));
                     EXPECT_NE(m_screen->Popup(), nullptr);
                   },
                   Dismissing()}),
            0);
}

TEST_F(MenuPopupTest, FocusGoesBackWhereItWas) {
  test::SampleFrame frame(*m_screen);
  QLineEdit editor(&frame);
  editor.show();
  editor.setFocus();
  Track({[&editor] { EXPECT_FALSE(editor.hasFocus()); }, Dismissing()});
  EXPECT_TRUE(editor.hasFocus());
}

TEST_F(MenuPopupTest, AnEmptyMenuAndAClosingScreenShowNothing) {
  EXPECT_EQ(m_screen->TrackMenu(kMenuPlace, {}), 0);
  m_screen->CloseAll();
  EXPECT_EQ(m_screen->TrackMenu(kMenuPlace, Fruit()), 0);
}

std::vector<MenuItem> Numbers(int count) {
  std::vector<MenuItem> items;
  for (int i = 1; i <= count; ++i) items.push_back({.Text = QString::number(i), .Id = i});
  return items;
}

// A menu of the thirty-one days of a month: longer than the screen.
class LongMenuTest : public MenuPopupTest {
 protected:
  int TrackDays(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_screen->TrackMenu(kMenuPlace, Numbers(31));
  }
  QPoint UpStrip() const { return m_screen->Popup()->geometry().topLeft() + QPoint(20, 5); }
  QPoint DownStrip() const { return m_screen->Popup()->geometry().bottomLeft() + QPoint(20, -5); }
};

TEST_F(LongMenuTest, AStripScrollsToTheItemsThatDoNotFit) {
  EXPECT_EQ(TrackDays({[this] {
                         EXPECT_TRUE(m_screen->rect().contains(m_screen->Popup()->geometry()));
                         EXPECT_TRUE(RowNamed(*m_screen->Popup(), QStringLiteral("31")).isNull());
                       },
                       [this] { m_input.Tap(DownStrip()); }, [this] { m_input.Tap(DownStrip()); },
                       [this] { m_input.Tap(At(u"31")); }}),
            31);
}

TEST_F(LongMenuTest, TheOtherStripScrollsBack) {
  EXPECT_EQ(TrackDays({[this] { m_input.Tap(DownStrip()); },
                       [this] {
                         EXPECT_TRUE(RowNamed(*m_screen->Popup(), QStringLiteral("1")).isNull());
                         m_input.Tap(UpStrip());
                       },
                       [this] { m_input.Tap(At(u"1")); }}),
            1);
}

TEST_F(LongMenuTest, KeysBringTheirItemIntoView) {
  EXPECT_EQ(TrackDays({[this] { m_input.Key(Qt::Key_Up); },
                       [this] {
                         EXPECT_FALSE(RowNamed(*m_screen->Popup(), QStringLiteral("31")).isNull());
                         m_input.Key(Qt::Key_Return);
                       }}),
            31);
}

TEST_F(LongMenuTest, OpensWithTheItemItStartsAtInView) {
  CMenuPopup menu(*m_screen, Numbers(31), QRect(kMenuPlace, QSize(0, 0)));
  menu.StartAt(30);
  const Steps steps(*m_screen, {[this] {
    EXPECT_FALSE(RowNamed(*m_screen->Popup(), QStringLiteral("31")).isNull());
    m_input.Key(Qt::Key_Return);
  }});
  EXPECT_EQ(menu.Track(), 31);
}

}  // namespace
}  // namespace quill
