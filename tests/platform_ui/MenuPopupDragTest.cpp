// One press may go through a menu and its submenu: what a drag opens, keeps open and chooses.
#include "platform/ui/MenuPopup.h"
#include "platform_ui/ScreenFixture.h"
#include "platform_ui/Steps.h"

namespace quill {
namespace {

class MenuPopupDragTest : public test::ScreenFixture {
 protected:
  // The chosen id when the pen goes through these steps.
  int Track(std::vector<test::Step> through) {
    const test::Steps steps(*m_screen, std::move(through));
    return m_screen->TrackMenu({10, 40}, Items());
  }

  QPoint On(const char* item) const {
    const CMenuPopup* const menu = QLatin1String(item) == QLatin1String("Fig") ? Submenu() : Root();
    return RowNamed(*menu, QString::fromLatin1(item)).center();
  }
  CMenuPopup* Root() const { return m_screen->Popup(); }
  CMenuPopup* Submenu() const {
    for (CMenuPopup* const menu : m_screen->findChildren<CMenuPopup*>())
      if (menu != Root() && menu->isVisible()) return menu;
    return nullptr;
  }

 private:
  static std::vector<MenuItem> Items() {
    return {{.Text = QStringLiteral("Apple"), .Id = 1},
            {.Text = QStringLiteral("More"), .Items = {{.Text = QStringLiteral("Fig"), .Id = 41}}}};
  }
};

TEST_F(MenuPopupDragTest, ADragIntoASubmenuChoosesThere) {
  const int chosen =
      Track({[this] { m_input.Press(On("More")); }, [this] { m_input.Move(On("Fig")); },
             [this] { m_input.Release(On("Fig")); }});
  EXPECT_EQ(chosen, 41);
}

TEST_F(MenuPopupDragTest, ADragOverAnItemWithASubmenuOpensIt) {
  Track({[this] { m_input.Press(On("Apple")); }, [this] { m_input.Move(On("More")); },
         [this] { m_input.Release(On("More")); },
         [this] {
           EXPECT_NE(Submenu(), nullptr);
           Root()->Dismiss();
         }});
}

TEST_F(MenuPopupDragTest, ASubmenuStaysOpenWhileThePenIsBesideTheMenus) {
  Track({[this] { m_input.Press(On("More")); },
         [this] {
           m_input.Move({200, 300});
         },
         [this] {
           EXPECT_NE(Submenu(), nullptr);
           m_input.Release({200, 300});
           Root()->Dismiss();
         }});
}

}  // namespace
}  // namespace quill
