#include "platform/ui/MenuBar.h"

#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

constexpr QPoint kInClient{120, 150};

class MenuBarTest : public test::ScreenFixture {
 protected:
  MenuBarTest() : m_bar(*m_screen->findChild<CMenuBar*>()), m_frame(*m_screen) {}

  QPoint At(const char16_t* title) const {
    return RowNamed(m_bar, QString::fromUtf16(title)).center();
  }
  QPoint AtItem(const char16_t* item) const {
    return RowNamed(*m_screen->Popup(), QString::fromUtf16(item)).center();
  }

  // That the menu which is open begins with this item.
  Step Shows(const char16_t* item) {
    return [this, item] {
      ASSERT_NE(m_screen->Popup(), nullptr) << QString::fromUtf16(item).toStdString();
      EXPECT_EQ(m_screen->Popup()->Items().front().Text, QString::fromUtf16(item));
    };
  }
  Step Keys(int key) {
    return [this, key] { m_input.Key(key); };
  }

  CMenuBar& m_bar;
  test::SampleFrame m_frame;
};

TEST_F(MenuBarTest, APressOnATitleOpensItsMenuAboveTheBar) {
  const Steps steps(*m_screen, {Shows(u"Plum"),
                                [this] {
                                  const QRect menu = m_screen->Popup()->geometry();
                                  EXPECT_EQ(menu.bottom() + 1, m_bar.y());
                                  EXPECT_EQ(menu.left(),
                                            RowNamed(m_bar, QStringLiteral("Two")).left());
                                  EXPECT_TRUE(m_screen->rect().contains(menu));
                                },
                                Keys(Qt::Key_Escape)});
  m_input.Press(At(u"Two"));
  EXPECT_EQ(m_screen->Popup(), nullptr);
  EXPECT_TRUE(m_frame.Ran.empty());
}

TEST_F(MenuBarTest, AChosenItemsCommandRunsOnceAfterTheMenuIsGone) {
  const Steps steps(*m_screen, {[this] { m_input.Release(At(u"One")); },
                                [this] { m_input.Tap(AtItem(u"Pear")); }});
  m_input.Press(At(u"One"));
  EXPECT_EQ(m_frame.Ran, std::vector<int>{12});
}

TEST_F(MenuBarTest, ArrowKeysGoToTheNeighboursAndWrap) {
  const Steps steps(*m_screen,
                    {Shows(u"Apple"), Keys(Qt::Key_Right), Shows(u"Plum"), Keys(Qt::Key_Right),
                     Shows(u"Grape"), Keys(Qt::Key_Right), Shows(u"Apple"), Keys(Qt::Key_Left),
                     Shows(u"Grape"), Keys(Qt::Key_Escape)});
  m_input.Key(Qt::Key_F10);
}

TEST_F(MenuBarTest, AnItemOfAMenuReachedByArrowKeysRuns) {
  const Steps steps(*m_screen, {Keys(Qt::Key_Right), Keys(Qt::Key_Down), Keys(Qt::Key_Return)});
  m_input.Key(Qt::Key_F10);
  EXPECT_EQ(m_frame.Ran, std::vector<int>{21});
}

TEST_F(MenuBarTest, APressOnAnotherTitleWhileAMenuIsOpenOpensThatOne) {
  const Steps steps(*m_screen, {[this] { m_input.Release(At(u"One")); }, Shows(u"Apple"),
                                [this] { m_input.Press(At(u"Three")); },
                                [this] { m_input.Release(At(u"Three")); }, Shows(u"Grape"),
                                [this] { m_input.Tap(AtItem(u"Grape")); }});
  m_input.Press(At(u"One"));
  EXPECT_EQ(m_frame.Ran, std::vector<int>{31});
}

TEST_F(MenuBarTest, APressOnTheSameTitleClosesItsMenu) {
  const Steps steps(*m_screen, {[this] { m_input.Release(At(u"One")); }, Shows(u"Apple"),
                                [this] { m_input.Press(At(u"One")); }});
  m_input.Press(At(u"One"));
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(MenuBarTest, TheOpenMenusTitleLooksPressed) {
  const auto pressed = [this] {
    QStringList names;
    for (const PaintedRow& row : m_bar.Rows())
      if (row.State.testFlag(PaintedStateFlag::Current)) names.append(row.SpokenName);
    return names;
  };
  const Steps steps(*m_screen, {[&] { EXPECT_EQ(pressed(), QStringList{QStringLiteral("Two")}); },
                                Keys(Qt::Key_Escape)});
  m_input.Press(At(u"Two"));
  EXPECT_TRUE(pressed().isEmpty());
}

TEST_F(MenuBarTest, AButtonRunsItsCommandOnReleaseOnly) {
  m_input.Press(At(u"New"));
  EXPECT_TRUE(m_frame.Ran.empty());
  m_input.Release(At(u"New"));
  EXPECT_EQ(m_frame.Ran, std::vector<int>{1});
}

TEST_F(MenuBarTest, AReleaseElsewhereRunsNothing) {
  for (const QPoint elsewhere : {kInClient, At(u"One"), At(u"Input panel")}) {
    m_input.Press(At(u"New"));
    m_input.Move(elsewhere);
    m_input.Release(elsewhere);
  }
  m_input.Press(kInClient);
  m_input.Release(At(u"New"));
  EXPECT_TRUE(m_frame.Ran.empty());
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(MenuBarTest, ADisabledButtonRunsNothing) {
  m_frame.Bar.Buttons[0].Id = 100;
  m_frame.Bar.Buttons[0].Enabled = false;
  m_input.Tap(At(u"New"));
  EXPECT_TRUE(m_frame.Ran.empty());
}

TEST_F(MenuBarTest, TheInputPanelsButtonRaisesAndLowersThePanel) {
  m_input.Tap(At(u"Input panel"));
  EXPECT_TRUE(m_panel.IsUp());
  m_input.Tap(At(u"Input panel"));
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(MenuBarTest, TheInputPanelsButtonIsCheckedWhileThePanelIsUp) {
  EXPECT_FALSE(m_screen->InputPanelButton().Checked);
  m_panel.Raise();
  EXPECT_TRUE(m_screen->InputPanelButton().Checked);
}

TEST_F(MenuBarTest, AltAloneOpensTheFirstMenu) {
  const Steps steps(*m_screen, {Shows(u"Apple"), Keys(Qt::Key_Escape)});
  m_input.KeyPress(Qt::Key_Alt, Qt::AltModifier);
  EXPECT_EQ(m_screen->Popup(), nullptr) << "not before it is released";
  m_input.KeyRelease(Qt::Key_Alt);
}

TEST_F(MenuBarTest, AltWithAnotherKeyOpensNothing) {
  m_input.KeyPress(Qt::Key_Alt, Qt::AltModifier);
  m_input.Key(Qt::Key_X, Qt::AltModifier);
  m_input.KeyRelease(Qt::Key_Alt);
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(MenuBarTest, AFullScreenDialogHasTheInputPanelsButtonAlone) {
  test::SampleDialog dialog(*m_screen, test::FullScreenSample());
  const Steps steps(*m_screen, {[this] {
                                  ASSERT_EQ(m_bar.Rows().size(), 1U);
                                  EXPECT_EQ(m_bar.Rows()[0].SpokenName,
                                            QStringLiteral("Input panel"));
                                  m_input.Tap(At(u"Input panel"));
                                  EXPECT_TRUE(m_panel.IsUp()) << "the bar stands above the shade";
                                  m_input.Key(Qt::Key_F10);
                                  EXPECT_EQ(m_screen->Popup(), nullptr) << "there is no menu";
                                },
                                [&dialog] { dialog.EndDialog(kResultOK); }});
  dialog.DoModal();
  EXPECT_EQ(m_bar.Rows().size(), 5U) << "the frame's again";
}

TEST_F(MenuBarTest, BelowASmallDialogTheBarTakesNoPen) {
  test::SampleDialog dialog(*m_screen);
  const Steps steps(*m_screen, {[this] {
                                  m_input.Tap(At(u"New"));
                                  m_input.Tap(At(u"One"));
                                },
                                [&dialog] { dialog.EndDialog(kResultOK); }});
  dialog.DoModal();
  EXPECT_TRUE(m_frame.Ran.empty());
}

TEST_F(MenuBarTest, BelowASmallDialogKeysOpenNoMenuOfIt) {
  test::SampleDialog dialog(*m_screen, test::SmallSample());
  const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_F10); },
                                [this, &dialog] {
                                  EXPECT_EQ(m_screen->Popup(), nullptr);
                                  dialog.EndDialog(kResultOK);
                                }});
  dialog.DoModal();
}

TEST_F(MenuBarTest, AltWithAPressOpensNothing) {
  m_input.KeyPress(Qt::Key_Alt, Qt::AltModifier);
  m_input.Tap({120, 150});
  m_input.KeyRelease(Qt::Key_Alt);
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(MenuBarTest, AWindowThatOpensOverAMenuEndsIt) {
  test::SampleDialog dialog(*m_screen, test::SmallSample());
  const Steps steps(*m_screen, {[&] { dialog.DoModal(); },
                                [&] {
                                  EXPECT_EQ(m_screen->Popup(), nullptr);
                                  dialog.EndDialog(kResultOK);
                                }});
  EXPECT_EQ(m_screen->TrackMenu({10, 40}, {{.Text = QStringLiteral("One"), .Id = 1}}), 0);
}

TEST_F(MenuBarTest, OpenedByKeysEachMenuBeginsAtItsFirstItem) {
  const Steps steps(*m_screen, {Keys(Qt::Key_Right), Shows(u"Plum"), Keys(Qt::Key_Return)});
  m_input.Key(Qt::Key_F10);
  EXPECT_EQ(m_frame.Ran, std::vector<int>{21});
}

TEST_F(MenuBarTest, OpenedByAPenAMenuBeginsNowhere) {
  const Steps steps(*m_screen, {Keys(Qt::Key_Return), Keys(Qt::Key_Escape)});
  m_input.Press(At(u"One"));
  EXPECT_TRUE(m_frame.Ran.empty());
}

}  // namespace
}  // namespace quill
