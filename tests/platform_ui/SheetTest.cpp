#include "platform/ui/Sheet.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <set>

#include "platform/ui/SheetTabs.h"
#include "platform_ui/AccessibleChild.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::SampleSheet;
using test::Step;
using test::Steps;

constexpr QRect kPageOfOpenScreen{0, 0, 240, 248};

class SheetTest : public test::ScreenFixture {
 protected:
  SheetTest() : m_frame(*m_screen), m_sheet(*m_screen) {}

  int Run(std::vector<Step> steps) { return Run(m_sheet, std::move(steps)); }
  int Run(CSheet& sheet, std::vector<Step> steps) {
    steps.push_back([&sheet] { sheet.EndDialog(kResultCancel); });
    const Steps running(*m_screen, std::move(steps));
    return sheet.DoModal();
  }
  Step Keys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [this, key, modifiers] { m_input.Key(key, modifiers); };
  }
  Step ExpectActive(int index) {
    return [this, index] { EXPECT_EQ(m_sheet.ActiveIndex(), index); };
  }
  CSheetTabs& Tabs() const { return *m_sheet.findChild<CSheetTabs*>(); }
  QPoint OnTab(const QString& title) const { return RowNamed(Tabs(), title).center(); }
  static QLineEdit& Edit(const CSheetPage& page, int id) {
    return dynamic_cast<QLineEdit&>(*page.Controls().at(id));
  }
  // What a page was told since the last time that was asked.
  QString Told() {
    const QString told = m_sheet.Log.join(QStringLiteral(", "));
    m_sheet.Log.clear();
    return told;
  }

  test::SampleFrame m_frame;
  SampleSheet m_sheet;
};

TEST_F(SheetTest, FillsTheClientAreaWithItsTabsBelowThePage) {
  Run({[this] {
    EXPECT_EQ(m_sheet.Kind(), WindowKind::Sheet);
    EXPECT_EQ(m_sheet.geometry(), QRect(0, 26, 240, 270));
    EXPECT_EQ(m_sheet.One.geometry(), kPageOfOpenScreen);
    EXPECT_EQ(Tabs().geometry(), QRect(0, 248, 240, 22));
    EXPECT_EQ(m_sheet.Caption(), QStringLiteral("Sample sheet"));
  }});
}

TEST_F(SheetTest, ShowsItsFirstPageAndNoOther) {
  EXPECT_EQ(m_sheet.ActivePage(), nullptr);
  Run({[this] {
    EXPECT_EQ(m_sheet.ActivePage(), &m_sheet.One);
    EXPECT_TRUE(m_sheet.One.isVisible());
    EXPECT_FALSE(m_sheet.Two.isVisible());
    EXPECT_FALSE(m_sheet.Three.isVisible());
  }});
}

TEST_F(SheetTest, AllPagesLoadBeforeTheFirstBecomesActive) {
  Run({[this] {
    EXPECT_EQ(Told(), QStringLiteral("load One, load Two, load Three, active One"));
  }});
}

TEST_F(SheetTest, ATapOnATabShowsItsPage) {
  Run({[this] { m_input.Tap(OnTab(QStringLiteral("Three"))); },
       [this] {
         EXPECT_EQ(m_sheet.ActivePage(), &m_sheet.Three);
         EXPECT_FALSE(m_sheet.One.isVisible());
         EXPECT_TRUE(m_sheet.Three.isVisible());
         EXPECT_EQ(m_sheet.Three.geometry(), kPageOfOpenScreen);
       }});
}

TEST_F(SheetTest, APenThatLeavesTheTabSwitchesNothing) {
  Run({[this] {
    m_input.Press(OnTab(QStringLiteral("Two")));
    m_input.Move(OnTab(QStringLiteral("Three")));
    m_input.Release(OnTab(QStringLiteral("Three")));
    EXPECT_EQ(m_sheet.ActiveIndex(), 0);
  }});
}

TEST_F(SheetTest, KeysSwitchThePages) {
  Run({Keys(Qt::Key_Tab, Qt::ControlModifier), ExpectActive(1),
       Keys(Qt::Key_PageDown, Qt::ControlModifier), ExpectActive(2),
       Keys(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), ExpectActive(1),
       Keys(Qt::Key_PageUp, Qt::ControlModifier), ExpectActive(0)});
}

TEST_F(SheetTest, AControlThatWouldTakeTheKeyDoesNotGetIt) {
  QComboBox list(&m_sheet.One);
  list.addItems({QStringLiteral("a"), QStringLiteral("b")});
  m_sheet.One.FocusWanted = &list;
  Run({[&] { ASSERT_TRUE(list.hasFocus()); }, Keys(Qt::Key_PageDown, Qt::ControlModifier),
       ExpectActive(1), [&] { EXPECT_EQ(list.currentIndex(), 0); }});
}

TEST_F(SheetTest, KeysForAWindowAboveItSwitchNothing) {
  test::SampleDialog above(*m_screen);
  Run({[&] { above.DoModal(); }, Keys(Qt::Key_Tab, Qt::ControlModifier),
       [&] { above.EndDialog(kResultOK); }, ExpectActive(0)});
}

TEST_F(SheetTest, APageIsLeftBeforeTheNextIsShown) {
  Run({[this] {
    Told();
    m_sheet.ShowPage(2);
    EXPECT_EQ(Told(), QStringLiteral("inactive One, active Three"));
    m_sheet.ShowPage(2);
    EXPECT_EQ(Told(), QString());
  }});
}

TEST_F(SheetTest, OKLeavesTheShownPageAndThenAllPagesStore) {
  const Steps steps(*m_screen, {[this] {
                                  m_sheet.ShowPage(1);
                                  Told();
                                },
                                Keys(Qt::Key_Return)});
  EXPECT_EQ(m_sheet.DoModal(), kResultOK);
  EXPECT_EQ(Told(), QStringLiteral("inactive Two, store One, store Two, store Three"));
}

TEST_F(SheetTest, CancelStoresNothing) {
  const Steps steps(*m_screen, {[this] { Told(); }, Keys(Qt::Key_Escape)});
  EXPECT_EQ(m_sheet.DoModal(), kResultCancel);
  EXPECT_EQ(Told(), QString());
}

TEST_F(SheetTest, BeginsAnewWhenItRunsAgain) {
  Run({[this] { m_sheet.ShowPage(1); }});
  Told();
  Run({[this] {
    EXPECT_EQ(Told(), QStringLiteral("load One, load Two, load Three, active One"));
    EXPECT_FALSE(m_sheet.Two.isVisible());
  }});
}

TEST_F(SheetTest, TheFocusGoesToTheFirstControlOfThePageThatIsShown) {
  Run({[this] {
    EXPECT_TRUE(Edit(m_sheet.One, test::kFirstEdit).hasFocus());
    m_sheet.ShowPage(1);
    EXPECT_TRUE(Edit(m_sheet.Two, test::kFirstEdit).hasFocus());
  }});
}

TEST_F(SheetTest, TheFocusStaysWhereThePageWantsIt) {
  m_sheet.Two.FocusWanted = &Edit(m_sheet.Two, test::kSecondEdit);
  Run({[this] {
    m_sheet.ShowPage(1);
    EXPECT_TRUE(Edit(m_sheet.Two, test::kSecondEdit).hasFocus());
  }});
}

TEST_F(SheetTest, TheTabKeyStaysWithinTheShownPage) {
  std::vector<Step> steps{[this] { m_sheet.ShowPage(1); }};
  std::multiset<QWidget*> visited;
  for (int i = 0; i < 4; ++i) {
    steps.push_back(Keys(Qt::Key_Tab));
    steps.push_back([&visited] { visited.insert(QApplication::focusWidget()); });
  }
  Run(std::move(steps));
  EXPECT_EQ(visited.count(&Edit(m_sheet.Two, test::kFirstEdit)), 2U);
  EXPECT_EQ(visited.count(&Edit(m_sheet.Two, test::kSecondEdit)), 2U);
}

TEST_F(SheetTest, ATapOnATabTakesTheFocusFromNoControl) {
  Run({[this] {
    m_input.Press(OnTab(QStringLiteral("Two")));
    EXPECT_TRUE(Edit(m_sheet.One, test::kFirstEdit).hasFocus());
    m_input.Release(OnTab(QStringLiteral("Two")));
  }});
}

TEST_F(SheetTest, ControlsAreThoseOfTheSheetAndOfTheShownPage) {
  QPushButton own(&m_sheet);
  m_sheet.AddControl(test::kSampleCheck, &own);
  EXPECT_EQ(m_sheet.Control(test::kFirstEdit), nullptr);
  Run({[this, &own] {
    EXPECT_EQ(m_sheet.Control(test::kFirstEdit), &Edit(m_sheet.One, test::kFirstEdit));
    EXPECT_EQ(m_sheet.Controls().size(), 3U);
    m_sheet.ShowPage(1);
    EXPECT_EQ(m_sheet.Control(test::kFirstEdit), &Edit(m_sheet.Two, test::kFirstEdit));
    EXPECT_EQ(m_sheet.Control(test::kSampleCheck), &own);
    EXPECT_EQ(m_sheet.Control(4711), nullptr);
  }});
}

TEST_F(SheetTest, AnIdThatTheSheetHasIsTheSheets) {
  QPushButton own(&m_sheet);
  m_sheet.AddControl(test::kFirstEdit, &own);
  Run({[this, &own] { EXPECT_EQ(m_sheet.Control(test::kFirstEdit), &own); }});
}

TEST_F(SheetTest, MenuBarAndCommandsFollowTheShownPage) {
  Run({[this] {
    Told();
    EXPECT_EQ(m_sheet.MenuBar().Menus.front().Text, QStringLiteral("One"));
    m_sheet.ShowPage(1);
    EXPECT_EQ(m_sheet.MenuBar().Menus.front().Text, QStringLiteral("Two"));
    Told();
    EXPECT_EQ(m_sheet.RunCommand(31), CommandResult::Unknown);
    EXPECT_EQ(m_sheet.RunCommand(32), CommandResult::Done);
    EXPECT_EQ(Told(), QStringLiteral("command Two"));
  }});
}

TEST_F(SheetTest, TheBarShowsTheMenusOfTheShownPage) {
  const auto isInBar = [this](const QString& title) {
    for (const auto* bar : m_screen->findChildren<CPaintedWindow*>(Qt::FindDirectChildrenOnly))
      if (bar->Role() == QAccessible::MenuBar && !RowNamed(*bar, title).isNull()) return true;
    return false;
  };
  Run({[&] {
    EXPECT_TRUE(isInBar(QStringLiteral("One")));
    m_sheet.ShowPage(1);
    EXPECT_TRUE(isInBar(QStringLiteral("Two")));
    EXPECT_FALSE(isInBar(QStringLiteral("One")));
  }});
}

TEST_F(SheetTest, TheMenuKeyIsThePages) {
  Run({[this] {
    Told();
    EXPECT_TRUE(m_sheet.ShowContextMenu());
    EXPECT_EQ(Told(), QStringLiteral("context menu One"));
  }});
}

TEST_F(SheetTest, APageHasTheInputPanelsButtonAndNoCommandsByDefault) {
  CSheet sheet(*m_screen, QStringLiteral("Plain"));
  CSheetPage page(sheet, QStringLiteral("Page"));
  sheet.AddPage(page);
  EXPECT_FALSE(sheet.ShowContextMenu());
  EXPECT_EQ(sheet.RunCommand(31), CommandResult::Unknown);
  Run(sheet, {[&] {
        ASSERT_EQ(sheet.MenuBar().Buttons.size(), 1U);
        EXPECT_EQ(sheet.MenuBar().Buttons.front().Id, ID_SHELL_INPUT_PANEL);
        EXPECT_FALSE(sheet.ShowContextMenu());
        EXPECT_EQ(sheet.RunCommand(31), CommandResult::Unknown);
      }});
}

TEST_F(SheetTest, APagesControlsAreMadeFromAResource) {
  class ResourcePage : public CSheetPage {
   public:
    explicit ResourcePage(CSheet& sheet) : CSheetPage(sheet, QStringLiteral("Page")) {
      using resources::ControlKind;
      AddPageControl({ControlKind::Edit, test::kFirstEdit, u"text", {10, 20, 60, 18}});
      Label = AddPageControl({ControlKind::Label, resources::kNoId, u"name", {80, 20, 60, 18}});
    }
    QWidget* Label;
  };
  CSheet sheet(*m_screen, QStringLiteral("Sheet"));
  const ResourcePage page(sheet);
  EXPECT_EQ(Edit(page, test::kFirstEdit).text(), QStringLiteral("text"));
  EXPECT_EQ(Edit(page, test::kFirstEdit).geometry(), QRect(10, 20, 60, 18));
  EXPECT_EQ(Edit(page, test::kFirstEdit).parentWidget(), &page);
  EXPECT_EQ(page.Label->geometry(), QRect(80, 20, 60, 18));
  EXPECT_EQ(page.Controls().size(), 1U) << "a label without an id is nobody's control";
}

TEST_F(SheetTest, IsToldWhichPageIsShown) {
  class TellingSheet : public SampleSheet {
   public:
    using SampleSheet::SampleSheet;
    QList<int> Shown;

   protected:
    void OnPageShown() override { Shown.append(ActiveIndex()); }
  };
  TellingSheet sheet(*m_screen);
  Run(sheet, {[&] {
        sheet.ShowPage(1);
        sheet.ShowPage(1);
        sheet.ShowPage(0);
      }});
  EXPECT_EQ(sheet.Shown, (QList<int>{0, 1, 0}));
}

TEST_F(SheetTest, WithoutPagesItIsAnEmptyWindow) {
  CSheet sheet(*m_screen, QStringLiteral("Empty"));
  const Steps steps(*m_screen, {Keys(Qt::Key_Tab, Qt::ControlModifier), Keys(Qt::Key_Return)});
  EXPECT_EQ(sheet.DoModal(), kResultOK);
}

TEST_F(SheetTest, EndsWhereTheInputPanelBegins) {
  Run({[this] {
    m_panel.Raise();
    EXPECT_EQ(m_sheet.geometry(), QRect(0, 26, 240, 190));
    EXPECT_EQ(m_sheet.One.geometry(), QRect(0, 0, 240, 168));
    EXPECT_EQ(Tabs().geometry(), QRect(0, 168, 240, 22));
    m_sheet.ShowPage(1);
    EXPECT_EQ(m_sheet.Two.geometry(), QRect(0, 0, 240, 168));
    m_panel.Lower();
    EXPECT_EQ(m_sheet.Two.geometry(), kPageOfOpenScreen);
    m_sheet.ShowPage(0);
    EXPECT_EQ(m_sheet.One.geometry(), kPageOfOpenScreen);
  }});
}

TEST_F(SheetTest, OpensAboveAPanelThatIsUpAlready) {
  m_panel.Raise();
  Run({[this] { EXPECT_EQ(m_sheet.One.geometry(), QRect(0, 0, 240, 168)); }});
}

TEST_F(SheetTest, WithoutTabsThePageFillsItAndOnlyTheSheetSwitches) {
  SampleSheet sheet(*m_screen, SheetTabs::None);
  EXPECT_EQ(sheet.findChild<CSheetTabs*>(), nullptr);
  Run(sheet, {Keys(Qt::Key_Tab, Qt::ControlModifier), [&] {
                EXPECT_EQ(sheet.ActiveIndex(), 0);
                EXPECT_EQ(sheet.One.geometry(), QRect(0, 0, 240, 270));
                sheet.ShowPage(1);
                EXPECT_EQ(sheet.ActivePage(), &sheet.Two);
              }});
}

TEST_F(SheetTest, ATabTellsAssistiveTechnologyWhetherItsPageIsShown) {
  Run({[this] {
         const test::AccessibleChild one(Tabs(), u"One");
         test::AccessibleChild two(Tabs(), u"Two");
         EXPECT_EQ(Tabs().Role(), QAccessible::PageTabList);
         EXPECT_EQ(two.Role(), QAccessible::PageTab);
         EXPECT_TRUE(one.State().selected);
         EXPECT_FALSE(two.State().selected);
         EXPECT_TRUE(two.State().selectable);
         two.Press();
       },
       [this] { EXPECT_TRUE(test::AccessibleChild(Tabs(), u"Two").State().selected); },
       ExpectActive(1)});
}

TEST_F(SheetTest, APageTellsAssistiveTechnologyItsTitle) {
  QAccessibleInterface* const page = QAccessible::queryAccessibleInterface(&m_sheet.Two);
  EXPECT_EQ(page->role(), QAccessible::PropertyPage);
  EXPECT_EQ(page->text(QAccessible::Name), QStringLiteral("Two"));
}

}  // namespace
}  // namespace quill
