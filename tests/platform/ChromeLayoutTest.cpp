#include "platform/ChromeLayout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "resources/Ids.h"

namespace quill {
namespace {

constexpr QSize kTitleBar{240, 26};
constexpr QSize kMenuBar{240, 24};

double TenEach(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

// No two rows overlap and all stand inside the bar.
void ExpectRowsStandApart(const std::vector<PaintedRow>& rows, QSize bar) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_TRUE(QRect(QPoint(), bar).contains(rows[i].Rectangle)) << i;
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_FALSE(rows[i].Rectangle.intersects(rows[j].Rectangle)) << i << " and " << j;
  }
}

const PaintedRow* RowOf(const std::vector<PaintedRow>& rows, int key) {
  for (const PaintedRow& row : rows)
    if (row.Key == key) return &row;
  return nullptr;
}

std::optional<Rgb> FillOf(const PaintedRow& row) {
  for (const PaintedItem& item : row.Items)
    if (item.Fill) return item.Fill;
  return std::nullopt;
}

std::optional<Rgb> TextColorOf(const PaintedRow& row) {
  for (const PaintedItem& item : row.Items)
    if (!item.Text.isEmpty()) return item.Color;
  return std::nullopt;
}

TEST(TitleBarLayout, ShowsTheCaptionAndTheButtonsThatTheWindowHas) {
  for (const bool hasOK : {false, true})
    for (const bool hasClose : {false, true}) {
      const auto rows = LayOutTitleBar(
          {.Caption = QStringLiteral("Quill"), .HasOK = hasOK, .HasClose = hasClose}, kTitleBar);
      ASSERT_NE(RowOf(rows, kTitleTextKey), nullptr);
      EXPECT_EQ(RowOf(rows, kTitleTextKey)->SpokenName, QStringLiteral("Quill"));
      EXPECT_EQ(RowOf(rows, kTitleOKKey) != nullptr, hasOK);
      EXPECT_EQ(RowOf(rows, kTitleCloseKey) != nullptr, hasClose);
      ExpectRowsStandApart(rows, kTitleBar);
    }
}

TEST(TitleBarLayout, TheCaptionGetsTheRoomThatNoButtonTakes) {
  const auto plain =
      LayOutTitleBar({.Caption = QStringLiteral("Quill"), .HasClose = false}, kTitleBar);
  const auto full = LayOutTitleBar({.Caption = QStringLiteral("Quill"), .HasOK = true}, kTitleBar);
  EXPECT_GT(RowOf(plain, kTitleTextKey)->Rectangle.width(),
            RowOf(full, kTitleTextKey)->Rectangle.width());
}

TEST(TitleBarLayout, TheCaptionOpensTheShellsMenuAndTheOthersAreButtons) {
  const auto rows = LayOutTitleBar({.Caption = QStringLiteral("Quill"), .HasOK = true}, kTitleBar);
  EXPECT_TRUE(RowOf(rows, kTitleTextKey)->State.testFlag(PaintedStateFlag::HasPopup));
  EXPECT_EQ(RowOf(rows, kTitleOKKey)->Role, PaintedRole::Button);
  EXPECT_EQ(RowOf(rows, kTitleCloseKey)->Role, PaintedRole::Button);
  EXPECT_EQ(RowOf(rows, kTitleOKKey)->SpokenName, QStringLiteral("OK"));
  EXPECT_EQ(RowOf(rows, kTitleCloseKey)->SpokenName, QStringLiteral("Close"));
}

TEST(TitleBarLayout, OnlyTheButtonUnderThePenLooksPressed) {
  const TitleBarModel model{.Caption = QStringLiteral("Quill"), .HasOK = true};
  TitleBarModel pressed = model;
  pressed.Pressed = kTitleOKKey;
  const auto before = LayOutTitleBar(model, kTitleBar);
  const auto after = LayOutTitleBar(pressed, kTitleBar);
  EXPECT_NE(FillOf(*RowOf(before, kTitleOKKey)), FillOf(*RowOf(after, kTitleOKKey)));
  EXPECT_EQ(FillOf(*RowOf(before, kTitleCloseKey)), FillOf(*RowOf(after, kTitleCloseKey)));
}

TEST(TitleBarLayout, ANoticeStandsBesideTheCaptionAndLeavesTheButtonsWhereTheyAre) {
  const TitleBarModel plain{.Caption = QStringLiteral("Quill"), .HasOK = true};
  TitleBarModel noticed = plain;
  noticed.Notice = TitleNotice{QStringLiteral("Receiving"), QStringLiteral("Stop receiving"), 7};
  const auto before = LayOutTitleBar(plain, kTitleBar);
  const auto after = LayOutTitleBar(noticed, kTitleBar);
  EXPECT_EQ(RowOf(before, kTitleNoticeKey), nullptr);
  const PaintedRow* const notice = RowOf(after, kTitleNoticeKey);
  ASSERT_NE(notice, nullptr);
  EXPECT_EQ(notice->SpokenName, QStringLiteral("Stop receiving"));
  EXPECT_EQ(notice->Role, PaintedRole::Button);
  EXPECT_TRUE(std::ranges::any_of(notice->Items, [](const PaintedItem& item) {
    return item.Text == QStringLiteral("Receiving");
  }));
  ExpectRowsStandApart(after, kTitleBar);
  for (const int key : {kTitleOKKey, kTitleCloseKey})
    EXPECT_EQ(RowOf(before, key)->Rectangle, RowOf(after, key)->Rectangle) << key;
  noticed.Pressed = kTitleNoticeKey;
  EXPECT_NE(FillOf(*notice), FillOf(*RowOf(LayOutTitleBar(noticed, kTitleBar), kTitleNoticeKey)));
}

class MenuBarLayout : public testing::Test {
 protected:
  MenuBarLayout() {
    m_model.Buttons = {{.Text = QStringLiteral("New"), .Id = ID_FILE_NEW},
                       {.Text = QStringLiteral("Input panel"),
                        .Id = ID_SHELL_INPUT_PANEL,
                        .Picture = &resources::kKeyboardPicture}};
    m_model.Menus = {{QStringLiteral("Tool"), {}}, {QStringLiteral("View"), {}}};
  }

  std::vector<PaintedRow> LayOut(int open = -1) const {
    return LayOutMenuBar(m_model, kMenuBar, open, TenEach);
  }

  MenuBarModel m_model;
};

TEST_F(MenuBarLayout, ARowsKeyIsItsPlaceInTheModelTheButtonsFirst) {
  const auto rows = LayOut();
  ASSERT_EQ(rows.size(), 4U);
  for (int key = 0; key < 4; ++key) EXPECT_EQ(rows[key].Key, key);
  EXPECT_EQ(rows[0].SpokenName, QStringLiteral("New"));
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("Input panel"));
  EXPECT_EQ(rows[2].SpokenName, QStringLiteral("Tool"));
  EXPECT_EQ(rows[3].SpokenName, QStringLiteral("View"));
}

TEST_F(MenuBarLayout, ButtonAndMenusFollowEachOtherAndThePanelStandsAtTheRightEnd) {
  const auto rows = LayOut();
  ExpectRowsStandApart(rows, kMenuBar);
  EXPECT_LT(rows[0].Rectangle.right(), rows[2].Rectangle.left());
  EXPECT_LT(rows[2].Rectangle.right(), rows[3].Rectangle.left());
  EXPECT_LT(rows[3].Rectangle.right(), rows[1].Rectangle.left());
  EXPECT_GE(rows[1].Rectangle.right(), kMenuBar.width() - 4);
}

TEST_F(MenuBarLayout, TextsFitTheirRows) {
  for (const PaintedRow& row : LayOut())
    for (const PaintedItem& item : row.Items)
      EXPECT_LE(TenEach(item.Text), row.Rectangle.width()) << item.Text.toStdString();
}

TEST_F(MenuBarLayout, MenusOpenAPopupAndButtonsDoNot) {
  const auto rows = LayOut();
  EXPECT_EQ(rows[0].Role, PaintedRole::Button);
  EXPECT_FALSE(rows[0].State.testFlag(PaintedStateFlag::HasPopup));
  EXPECT_EQ(rows[2].Role, PaintedRole::MenuItem);
  EXPECT_TRUE(rows[2].State.testFlag(PaintedStateFlag::HasPopup));
}

TEST_F(MenuBarLayout, OnlyTheOpenMenuLooksPressed) {
  const auto rows = LayOut(2);
  for (int key = 0; key < 4; ++key) {
    EXPECT_EQ(FillOf(rows[key]).has_value(), key == 2) << key;
    EXPECT_EQ(rows[key].State.testFlag(PaintedStateFlag::Current), key == 2) << key;
  }
}

TEST_F(MenuBarLayout, ADisabledButtonSaysSoAndHasAnotherColour) {
  const auto enabled = LayOut();
  m_model.Buttons[0].Enabled = false;
  const auto disabled = LayOut();
  EXPECT_TRUE(disabled[0].State.testFlag(PaintedStateFlag::Disabled));
  EXPECT_FALSE(enabled[0].State.testFlag(PaintedStateFlag::Disabled));
  EXPECT_NE(TextColorOf(disabled[0]), TextColorOf(enabled[0]));
}

TEST_F(MenuBarLayout, ThePanelsButtonIsAPictureThatLooksPressedWhileThePanelIsUp) {
  m_model.Buttons[1].Checked = true;
  const auto rows = LayOut();
  EXPECT_TRUE(rows[1].State.testFlag(PaintedStateFlag::Checked));
  EXPECT_TRUE(FillOf(rows[1]).has_value());
  ASSERT_FALSE(rows[1].Items.empty());
  EXPECT_EQ(rows[1].Items.back().Picture, &resources::kKeyboardPicture);
}

TEST_F(MenuBarLayout, PicturesStandAtTheRightEndInTheirOrder) {
  m_model.Buttons.insert(m_model.Buttons.begin(),
                         {.Text = QStringLiteral("Cross"), .Picture = &resources::kClosePicture});
  const auto rows = LayOut();
  ExpectRowsStandApart(rows, kMenuBar);
  EXPECT_EQ(rows[0].Items.back().Picture, &resources::kClosePicture);
  EXPECT_EQ(rows[0].SpokenName, QStringLiteral("Cross"));
  EXPECT_EQ(rows[0].Rectangle.right() + 1, rows[2].Rectangle.left());
  EXPECT_GE(rows[2].Rectangle.right(), kMenuBar.width() - 4);
  EXPECT_LT(rows[4].Rectangle.right(), rows[0].Rectangle.left());
}

}  // namespace
}  // namespace quill
