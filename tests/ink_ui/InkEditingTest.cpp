#include "ink/ui/InkEditing.h"

#include <algorithm>
#include <set>

#include "ink/ui/InkX.h"
#include "platform/Services.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/InkPictures.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

const QByteArray kForeign = "no ink of ours";

class InkEditingTest : public test::ScreenFixture {
 protected:
  InkEditingTest() {
    g_services.Clock = &m_clock;
    m_route.Add(m_editing);
  }
  ~InkEditingTest() override { g_services.Clock = nullptr; }

  void Run(int id) { EXPECT_EQ(m_route.Run(id, CommandCheck::AsMenu), CommandResult::Done) << id; }
  MenuBarModel Bar() const { return InkMenuBar(*m_screen, m_route); }
  std::vector<int> CheckedZooms() const {
    std::vector<int> checked;
    const MenuBarModel bar = Bar();
    for (const MenuItem& item : bar.Menus[1].Items)
      if (item.Checked) checked.push_back(item.Id);
    return checked;
  }
  // Style, zoom, wrap and view.
  std::vector<int> Modes() const {
    return {m_ink.PageStyle(), m_ink.Zoom(), m_ink.Wrap(), m_ink.View()};
  }

  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  test::SampleFrame m_frame{*m_screen};
  InkX m_ink{&m_frame};
  int m_deletions = 0;
  InkEditing m_editing{m_ink, [this] { ++m_deletions; }};
  CommandRoute m_route;
};

TEST_F(InkEditingTest, EveryMenuItemAndButtonHasExactlyOneRow) {
  std::multiset<int> ids;
  for (const CommandRow& row : m_editing.Rows()) ids.insert(row.First);
  std::set<int> expected = {204, 205};
  for (const resources::MenuResource& menu : resources::kInkMenu)
    for (const resources::MenuEntry& entry : menu.Entries) expected.insert(entry.Id);
  EXPECT_EQ(std::vector<int>(ids.begin(), ids.end()),
            std::vector<int>(expected.begin(), expected.end()));
}

TEST_F(InkEditingTest, ThePicturesOfSelectAndCloseUpStandBesideThePanels) {
  const std::vector<MenuItem> buttons = Bar().Buttons;
  ASSERT_EQ(buttons.size(), 3U);
  EXPECT_EQ(buttons[0].Id, ID_INK_TOGGLE);
  EXPECT_EQ(buttons[0].Text, QStringLiteral("Select"));
  EXPECT_EQ(buttons[0].Picture, &resources::kSelectPicture);
  EXPECT_EQ(buttons[1].Id, ID_INK_MODE);
  EXPECT_EQ(buttons[1].Text, QStringLiteral("Close-up"));
  EXPECT_EQ(buttons[1].Picture, &resources::kCloseUpPicture);
  EXPECT_EQ(buttons[2].Id, ID_SHELL_INPUT_PANEL);
  EXPECT_TRUE(buttons[0].Enabled && buttons[1].Enabled);
}

struct ZoomCase {
  int Id;
  int Percent;
};

class InkZoom : public InkEditingTest, public testing::WithParamInterface<ZoomCase> {};

TEST_P(InkZoom, SetsItsPercentAndIsTheOnlyOneChecked) {
  m_ink.SetZoom(120);
  Run(GetParam().Id);
  EXPECT_EQ(m_ink.Zoom(), GetParam().Percent);
  EXPECT_EQ(CheckedZooms(), std::vector<int>{GetParam().Id});
}

INSTANTIATE_TEST_SUITE_P(Commands, InkZoom,
                         testing::Values(ZoomCase{32787, 75}, ZoomCase{32788, 100},
                                         ZoomCase{32789, 150}, ZoomCase{32790, 200},
                                         ZoomCase{32791, 300}));

TEST_F(InkEditingTest, AnyOtherZoomLeavesNoItemChecked) {
  m_ink.SetZoom(120);
  EXPECT_TRUE(CheckedZooms().empty());
}

TEST_F(InkEditingTest, FromThePageTheModeGoesToTheCloseUpAndBack) {
  ShowInkAsPage(m_ink);
  EXPECT_EQ(Modes(), std::vector<int>({16, 100, 1, 0}));
  EXPECT_FALSE(Bar().Buttons[1].Checked);
  Run(ID_INK_MODE);
  EXPECT_EQ(Modes(), std::vector<int>({2, 200, 0, 2}));
  EXPECT_EQ(CheckedZooms(), std::vector<int>{ID_INK_ZOOM_200});
  EXPECT_TRUE(Bar().Buttons[1].Checked);
  Run(ID_INK_MODE);
  EXPECT_EQ(Modes(), std::vector<int>({16, 100, 1, 0}));
}

TEST_F(InkEditingTest, TheModeLeavesAnyOtherStyleAsItIs) {
  m_ink.SetPageStyle(7);
  m_ink.SetZoom(150);
  Run(ID_INK_MODE);
  EXPECT_EQ(Modes(), std::vector<int>({7, 150, 1, 0}));
}

TEST_F(InkEditingTest, TheToggleAlternates) {
  for (const int word : {1, 0, 1}) {
    Run(ID_INK_TOGGLE);
    EXPECT_EQ(m_ink.Toggle(), word);
    EXPECT_EQ(Bar().Buttons[0].Checked, word == 1);
  }
}

// The bar of a window that has the two buttons.
class InkBarTest : public InkEditingTest {
 protected:
  QImage Draw() { return m_screen->grab(kMenuBarArea).toImage(); }
};

TEST_F(InkBarTest, ShowsAtOnceWhatAButtonChanged) {
  for (const int id : {ID_INK_TOGGLE, ID_INK_MODE}) {
    m_frame.Bar = Bar();
    m_screen->UpdateChrome();
    const QImage before = Draw();
    m_frame.Bar = {};
    Run(id);
    EXPECT_NE(Draw(), before) << id;
  }
}

class InkCommandWithoutUse : public InkEditingTest, public testing::WithParamInterface<int> {};

TEST_P(InkCommandWithoutUse, IsDisabledOnAPageWithNothingOnIt) {
  EXPECT_FALSE(m_route.State(GetParam()).Enabled);
}

INSTANTIATE_TEST_SUITE_P(Commands, InkCommandWithoutUse,
                         testing::Values(ID_INK_UNDO, ID_INK_REDO, ID_INK_CUT, ID_INK_COPY,
                                         ID_INK_CLEAR));

TEST_F(InkEditingTest, DeleteNoteIsTheFrontEnds) {
  Run(ID_INK_DELETE_NOTE);
  EXPECT_EQ(m_deletions, 1);
}

TEST_F(InkEditingTest, ANotesBytesGoInAndOut) {
  PutInkIn(m_ink, kForeign);
  EXPECT_EQ(TakeInkOut(m_ink), kForeign);
  EraseInk(m_ink);
  EXPECT_EQ(TakeInkOut(m_ink), QByteArray());
}

}  // namespace
}  // namespace quill
