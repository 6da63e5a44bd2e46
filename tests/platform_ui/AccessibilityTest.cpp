#include "platform/ui/Accessibility.h"

#include <QAccessible>
#include <QLineEdit>

#include "platform/ui/CheckList.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/MenuPopup.h"
#include "platform/ui/MessageBox.h"
#include "platform/ui/TitleBar.h"
#include "platform_ui/AccessibleChild.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::AccessibleChild;
using test::Steps;

class AccessibilityTest : public test::ScreenFixture {
 protected:
  AccessibilityTest()
      : m_titleBar(*m_screen->findChild<CTitleBar*>()),
        m_menuBar(*m_screen->findChild<CMenuBar*>()),
        m_frame(*m_screen),
        m_shellCommands({{ID_SHELL_LARGER, ID_SHELL_FULL_SCREEN, [](int) {}, nullptr}}) {
    m_screen->SetShellCommands(&m_shellCommands);
  }

  QRect OnDesktop(QRect onScreen) const {
    return {m_screen->mapToGlobal(onScreen.topLeft()), onScreen.size()};
  }

  CTitleBar& m_titleBar;
  CMenuBar& m_menuBar;
  test::SampleFrame m_frame;
  CommandTarget m_shellCommands;
};

TEST_F(AccessibilityTest, PaintedWindowsSayWhatTheyAre) {
  const auto* titleBar = QAccessible::queryAccessibleInterface(&m_titleBar);
  EXPECT_EQ(titleBar->role(), QAccessible::TitleBar);
  EXPECT_EQ(titleBar->text(QAccessible::Name), QStringLiteral("Title bar"));
  const auto* menuBar = QAccessible::queryAccessibleInterface(&m_menuBar);
  EXPECT_EQ(menuBar->role(), QAccessible::MenuBar);
  EXPECT_EQ(menuBar->text(QAccessible::Name), QStringLiteral("Menu bar"));
}

TEST_F(AccessibilityTest, WindowsOfTheStackSayWhatTheyAreAndTheirCaption) {
  test::SampleDialog dialog(*m_screen);
  CMessageBox box(*m_screen, {.Text = QStringLiteral("Text")});
  const std::vector<std::pair<CWindow*, QAccessible::Role>> windows = {
      {&m_frame, QAccessible::Window},
      {&dialog, QAccessible::Dialog},
      {&box, QAccessible::AlertMessage}};
  for (const auto& [window, role] : windows) {
    const auto* accessible = QAccessible::queryAccessibleInterface(window);
    EXPECT_EQ(accessible->role(), role);
    EXPECT_EQ(accessible->text(QAccessible::Name), window->Caption());
  }
}

TEST_F(AccessibilityTest, EachRowIsAChildWithRoleNameAndRectangle) {
  auto* const bar = QAccessible::queryAccessibleInterface(&m_menuBar);
  ASSERT_EQ(bar->childCount(), static_cast<int>(m_menuBar.Rows().size()));
  for (int i = 0; i < bar->childCount(); ++i) {
    const PaintedRow& row = m_menuBar.Rows()[i];
    const auto* child = bar->child(i);
    EXPECT_EQ(child->text(QAccessible::Name), row.SpokenName);
    EXPECT_EQ(child->rect(), OnDesktop(RowNamed(m_menuBar, row.SpokenName)));
    EXPECT_EQ(child->parent(), bar);
    EXPECT_EQ(bar->indexOfChild(child), i);
  }
  EXPECT_EQ(bar->child(0)->role(), QAccessible::PushButton);
  EXPECT_EQ(bar->child(2)->role(), QAccessible::MenuItem);
  EXPECT_EQ(bar->child(bar->childCount()), nullptr);
}

TEST_F(AccessibilityTest, ARowIsFoundByAPointOfTheDesktop) {
  auto* const bar = QAccessible::queryAccessibleInterface(&m_titleBar);
  const QPoint onOK = OnDesktop(RowNamed(m_titleBar, QStringLiteral("OK"))).center();
  EXPECT_EQ(bar->childAt(onOK.x(), onOK.y())->text(QAccessible::Name), QStringLiteral("OK"));
  EXPECT_EQ(bar->childAt(onOK.x(), onOK.y() + 100), nullptr);
}

TEST_F(AccessibilityTest, AMenuTitleHasAPopupAndAButtonNone) {
  EXPECT_TRUE(AccessibleChild(m_menuBar, u"Two").State().hasPopup);
  EXPECT_FALSE(AccessibleChild(m_menuBar, u"New").State().hasPopup);
}

TEST_F(AccessibilityTest, ACheckedButtonIsSaidToBeChecked) {
  EXPECT_FALSE(AccessibleChild(m_menuBar, u"Input panel").State().checked);
  m_frame.Bar.Buttons[1].Checked = true;
  m_screen->UpdateChrome();
  EXPECT_TRUE(AccessibleChild(m_menuBar, u"Input panel").State().checked);
}

TEST_F(AccessibilityTest, PressingATitleBarButtonDoesWhatAPenDoes) {
  AccessibleChild(m_titleBar, u"OK").Press();
  AccessibleChild(m_titleBar, u"Close").Press();
  EXPECT_EQ(m_frame.Happened, (QStringList{QStringLiteral("OK"), QStringLiteral("Cancel")}));
}

TEST_F(AccessibilityTest, PressingAMenuBarButtonRunsItsCommand) {
  AccessibleChild(m_menuBar, u"New").Press();
  EXPECT_EQ(m_frame.Ran, std::vector<int>{1});
}

TEST_F(AccessibilityTest, PressingAMenuTitleOpensItsMenuAndPressingAnItemChoosesIt) {
  const Steps steps(*m_screen, {[this] { AccessibleChild(*m_screen->Popup(), u"Pear").Press(); }});
  AccessibleChild(m_menuBar, u"One").Press();
  EXPECT_EQ(m_frame.Ran, std::vector<int>{12});
}

TEST_F(AccessibilityTest, TheMenuActionOfTheCaptionOpensTheShellsMenu) {
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_EQ(m_screen->Popup()->Items()[0].Id, ID_SHELL_LARGER);
    m_screen->Popup()->Dismiss();
  }});
  AccessibleChild(m_titleBar, u"Frame").ShowMenu();
}

TEST_F(AccessibilityTest, ACheckBoxSaysHowItIsAndIsToggled) {
  CCheckList list(QStringLiteral("Choice"), &m_frame);
  list.setGeometry(0, 0, 100, 40);
  list.show();
  list.SetItems({{QStringLiteral("One"), true}, {QStringLiteral("Two")}, {QStringLiteral("Far")}});
  const auto* accessible = QAccessible::queryAccessibleInterface(&list);
  EXPECT_EQ(accessible->role(), QAccessible::List);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Choice"));
  AccessibleChild two(list, u"Two");
  EXPECT_EQ(two.Role(), QAccessible::CheckBox);
  EXPECT_TRUE(two.State().checkable);
  EXPECT_FALSE(two.State().checked);
  EXPECT_TRUE(AccessibleChild(list, u"One").State().checked);
  two.Press();
  EXPECT_FALSE(two.State().checked) << "it offers no press";
  two.Toggle();
  EXPECT_TRUE(two.State().checked);
  two.Toggle();
  EXPECT_FALSE(two.State().checked);
  EXPECT_FALSE(two.State().offscreen);
  EXPECT_TRUE(AccessibleChild(list, u"Far").State().offscreen);
}

TEST_F(AccessibilityTest, APopupsItemsSayHowTheyAre) {
  m_frame.Bar.Menus[0].Items = {
      {.Text = QStringLiteral("Checked"), .Id = 1, .Checked = true},
      {.Text = QStringLiteral("Disabled"), .Id = 2, .Enabled = false},
      {.Enabled = false, .Separator = true},
      {.Text = QStringLiteral("More"), .Items = {{.Text = QStringLiteral("Inner"), .Id = 3}}}};
  const Steps steps(*m_screen,
                    {[this] {
                       const CMenuPopup& menu = *m_screen->Popup();
                       auto* const popup = QAccessible::queryAccessibleInterface(m_screen->Popup());
                       EXPECT_EQ(popup->role(), QAccessible::PopupMenu);
                       EXPECT_TRUE(AccessibleChild(menu, u"Checked").State().checked);
                       EXPECT_TRUE(AccessibleChild(menu, u"Disabled").State().disabled);
                       EXPECT_TRUE(AccessibleChild(menu, u"More").State().hasPopup);
                       EXPECT_EQ(popup->child(2)->role(), QAccessible::Separator);
                       AccessibleChild(menu, u"Disabled").Press();
                     },
                     [this] {
                       ASSERT_NE(m_screen->Popup(), nullptr) << "it refused";
                       EXPECT_TRUE(AccessibleChild(*m_screen->Popup(), u"Checked").State().focused);
                       m_screen->Popup()->Dismiss();
                     }});
  m_input.Key(Qt::Key_F10);
  EXPECT_TRUE(m_frame.Ran.empty());
}

TEST_F(AccessibilityTest, ARowThatIsGoneIsInvalidAndHarmless) {
  auto* const last = QAccessible::queryAccessibleInterface(&m_menuBar)->child(4);
  ASSERT_TRUE(last->isValid());
  m_frame.Bar.Menus.clear();
  m_screen->UpdateChrome();
  EXPECT_FALSE(last->isValid());
  EXPECT_TRUE(last->rect().isNull());
  EXPECT_TRUE(last->text(QAccessible::Name).isEmpty());
  EXPECT_TRUE(last->state().invisible);
  last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(m_frame.Ran.empty());
}

TEST_F(AccessibilityTest, AnActionIsAnsweredBeforeItIsCarriedOut) {
  QAccessibleInterface* const bar = QAccessible::queryAccessibleInterface(&m_menuBar);
  for (int i = 0; i < bar->childCount(); ++i)
    if (bar->child(i)->text(QAccessible::Name) == QStringLiteral("New"))
      bar->child(i)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(m_frame.Ran.empty());
  QCoreApplication::processEvents();
  EXPECT_EQ(m_frame.Ran.size(), 1U);
}

TEST_F(AccessibilityTest, AWindowSaysItsKindThoughItIsStillBeingMade) {
  test::SampleDialog dialog(*m_screen, test::SmallSample());
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&dialog)->role(), QAccessible::Dialog);
  const CMessageBox box(*m_screen, {.Text = QStringLiteral("Text")});
  EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<CMessageBox*>(&box))->role(),
            QAccessible::AlertMessage);
}

TEST_F(AccessibilityTest, ATitleOffersNoPressButItsMenu) {
  QAccessibleInterface* const title = QAccessible::queryAccessibleInterface(&m_titleBar)->child(0);
  EXPECT_EQ(title->actionInterface()->actionNames(),
            QStringList{QAccessibleActionInterface::showMenuAction()});
}

class PaintedSample : public CPaintedWindow {
 public:
  explicit PaintedSample(QWidget* parent) : CPaintedWindow(parent, QAccessible::List) {
    setFocusPolicy(Qt::StrongFocus);
    SetRows({{.Rectangle = {0, 0, 100, 20}, .SpokenName = QStringLiteral("Row")},
             {.Rectangle = {0, 20, 100, 20},
              .SpokenName = QStringLiteral("Words"),
              .Role = PaintedRole::Text}});
    setGeometry(0, 0, 100, 60);
    show();
  }
};

TEST_F(AccessibilityTest, AControlOnAPaintedWindowIsItsChildAfterTheRows) {
  PaintedSample list(&m_frame);
  QLineEdit edit(&list);
  edit.setGeometry(50, 0, 50, 20);
  edit.setAccessibleName(QStringLiteral("Editor"));
  edit.show();
  auto* const parent = QAccessible::queryAccessibleInterface(&list);
  ASSERT_EQ(parent->childCount(), 3);
  auto* const control = parent->child(2);
  EXPECT_EQ(control->text(QAccessible::Name), QStringLiteral("Editor"));
  EXPECT_EQ(parent->indexOfChild(control), 2);
  EXPECT_EQ(parent->indexOfChild(parent->child(1)), 1);
  EXPECT_EQ(parent->child(3), nullptr);
  const QPoint onEditor = list.mapToGlobal(QPoint(60, 5));
  const QPoint besideIt = list.mapToGlobal(QPoint(10, 5));
  EXPECT_EQ(parent->childAt(onEditor.x(), onEditor.y()), control);
  EXPECT_EQ(parent->childAt(besideIt.x(), besideIt.y()), parent->child(0));
  edit.setFocus();
  EXPECT_EQ(parent->focusChild(), control);
}

TEST_F(AccessibilityTest, OnlyARowThatCanBeActedOnCanHaveTheFocus) {
  PaintedSample list(&m_frame);
  EXPECT_TRUE(AccessibleChild(list, u"Row").State().focusable);
  EXPECT_FALSE(AccessibleChild(list, u"Words").State().focusable);
  EXPECT_FALSE(AccessibleChild(m_titleBar, u"OK").State().focusable) << "no key leads there";
}

TEST_F(AccessibilityTest, AModalWindowSaysSo) {
  test::SampleDialog dialog(*m_screen);
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(&dialog)->state().modal);
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(&m_frame)->state().modal);
}

TEST_F(AccessibilityTest, AMenuHasTheNameOfWhatItBelongsTo) {
  m_frame.Bar.Menus[0].Items = {
      {.Text = QStringLiteral("More"), .Items = {{.Text = QStringLiteral("Inner"), .Id = 3}}}};
  const Steps steps(*m_screen, {[this] {
                                  EXPECT_EQ(m_screen->Popup()->accessibleName(),
                                            QStringLiteral("One"));
                                  m_input.Key(Qt::Key_Right);
                                  const auto menus = m_screen->findChildren<CMenuPopup*>();
                                  ASSERT_EQ(menus.size(), 2);
                                  EXPECT_EQ(menus[1]->accessibleName(), QStringLiteral("More"));
                                },
                                [this] { m_screen->Popup()->Dismiss(); }});
  m_input.Key(Qt::Key_F10);
}

}  // namespace
}  // namespace quill
