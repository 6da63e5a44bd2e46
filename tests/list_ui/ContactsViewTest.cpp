#include "list/ui/ContactsView.h"

#include <QPushButton>

#include "ViewFixture.h"
#include "list/Selection.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class ContactsViewTest : public test::ViewFixture {};

struct PlaceCase {
  int Id;
  QRect Place;
};

class ControlPlaceTest : public ContactsViewTest, public testing::WithParamInterface<PlaceCase> {};

TEST_P(ControlPlaceTest, StandsWhereItBelongs) {
  const QWidget* control = m_frame->Control(GetParam().Id);
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control->geometry(), GetParam().Place);
  EXPECT_TRUE(control->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Controls, ControlPlaceTest,
                         testing::Values(PlaceCase{1028, {2, 3, 95, 19}},
                                         PlaceCase{1035, {100, 2, 48, 21}},
                                         PlaceCase{1036, {0, 45, 225, 225}},
                                         PlaceCase{1024, {225, 45, 15, 222}}));

TEST_F(ContactsViewTest, WithoutTheIndexStripTheListBeginsInItsPlace) {
  g_settings.Abc = 0;
  m_frame = std::make_unique<test::ViewFrame>(*m_screen);
  EXPECT_FALSE(IndexStrip().isVisible());
  EXPECT_EQ(List().geometry(), QRect(0, 25, 225, 245));
  EXPECT_EQ(ScrollBar().geometry(), QRect(225, 25, 15, 242));
}

TEST_F(ContactsViewTest, TheIndexStripStandsBetweenTitleAndList) {
  EXPECT_EQ(IndexStrip().geometry(), QRect(0, 26, 240, 19));
  EXPECT_TRUE(IndexStrip().isVisible());
}

TEST_F(ContactsViewTest, ASearchTakesTheSelectionAway) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  SelectRow(g_list, 1);
  SearchEdit().setText(QStringLiteral("K"));
  View().Search();
  EXPECT_TRUE(g_list.SelectedKeys.empty());
  EXPECT_FALSE(List().Rows()[0].State.testFlag(PaintedStateFlag::Selected));
}

TEST_F(ContactsViewTest, ARebuildKeepsTheSelectionAndShowsIt) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  SelectRow(g_list, 1);
  Add(QStringLiteral("Adams"));
  View().Rebuild();
  EXPECT_TRUE(List().Rows()[2].State.testFlag(PaintedStateFlag::Selected));
}

TEST_F(ContactsViewTest, TheFirstUpdateOpensTheSessionAndShowsTheFirstPage) {
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  AddNumbered(20);
  CloseSession();
  // A store in memory goes with its session: a new one is empty.
  View().OnInitialUpdate(m_store);
  EXPECT_EQ(g_store.Provider, &m_store);
  EXPECT_EQ(g_list.RowsShown, 0);
  EXPECT_EQ(List().Rows().size(), 1U) << "the line that says how to fill the list";
}

TEST_F(ContactsViewTest, ASessionThatFailedLeavesTheViewEmptyAndItsCommandsHarmless) {
  PimStore missing(QStringLiteral("/dev/null/no/store.db"));
  test::ScriptedPrompt prompt{PromptAnswer::OK};
  g_services.Prompt = &prompt;
  View().OnInitialUpdate(missing);
  EXPECT_EQ(g_store.Provider, nullptr);
  EXPECT_EQ(g_list.RowsShown, 0);
  SearchEdit().setText(QStringLiteral("Kim"));
  View().Search();
  View().ShowMode(ViewMode::ByName);
  View().ChooseIndex(2);
  for (const int key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home}) {
    View().FocusList();
    m_input.Key(key);
  }
  View().OnStoreNotice(0, 0);
  m_timers.Advance(500);
  EXPECT_EQ(g_list.RowsShown, 0);
  EXPECT_EQ(g_list.Top, 0);
}

TEST_F(ContactsViewTest, TheSearchButtonShowsTheNamesThatBeginWithTheText) {
  Open({QStringLiteral("Kim"), QStringLiteral("Kimball"), QStringLiteral("Lee")});
  SearchEdit().setText(QStringLiteral("Kimb"));
  m_input.Tap(OnScreen(Control<QPushButton>(ContactsViewIds::kSearchButton)));
  EXPECT_EQ(ShownNames(), QStringList{QStringLiteral("Kimball")});
}

TEST_F(ContactsViewTest, EnterInTheSearchBoxSearches) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  m_input.Tap(OnScreen(SearchEdit()));
  m_input.Type(QStringLiteral("Le"));
  m_input.Key(Qt::Key_Return);
  EXPECT_EQ(ShownNames(), QStringList{QStringLiteral("Lee")});
}

TEST_F(ContactsViewTest, DownLeadsFromTheSearchBoxToTheFirstRowThatWasFound) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  m_input.Tap(OnScreen(SearchEdit()));
  m_input.Type(QStringLiteral("Le"));
  m_input.Key(Qt::Key_Return);
  m_input.Key(Qt::Key_Down);
  EXPECT_TRUE(List().hasFocus());
  EXPECT_EQ(SingleSelectedRow(g_list), 0);
}

TEST_F(ContactsViewTest, AnIndexButtonThatTakesTheSearchsPlaceEmptiesTheSearchBox) {
  Open({QStringLiteral("Adams"), QStringLiteral("Hill")});
  SearchEdit().setText(QStringLiteral("Hi"));
  View().ChooseIndex(1);
  EXPECT_EQ(SearchEdit().text(), QStringLiteral("Hi")) << "it was not searched for yet";
  View().Search();
  View().ChooseIndex(1);
  EXPECT_EQ(SearchEdit().text(), QString());
  EXPECT_EQ(ShownNames(), QStringList{QStringLiteral("Adams")});
}

TEST_F(ContactsViewTest, TheSearchButtonLeavesTheFocusInTheSearchBox) {
  Open();
  SearchEdit().setFocus();
  m_input.Tap(OnScreen(Control<QPushButton>(ContactsViewIds::kSearchButton)));
  EXPECT_TRUE(SearchEdit().hasFocus());
}

TEST_F(ContactsViewTest, TheSearchButtonsCommandSearchesToo) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  SearchEdit().setText(QStringLiteral("Le"));
  EXPECT_EQ(m_frame->RunCommand(ContactsViewIds::kSearchButton), CommandResult::Done);
  EXPECT_EQ(ShownNames(), QStringList{QStringLiteral("Lee")});
}

TEST_F(ContactsViewTest, KoreanNamesAreFoundByTheirFirstSyllable) {
  Open({QStringLiteral("김민수"), QStringLiteral("김철수"), QStringLiteral("박지성"),
        QStringLiteral("깁슨")});
  SearchEdit().setText(QStringLiteral("김"));
  View().Search();
  EXPECT_EQ(ShownNames(), (QStringList{QStringLiteral("김민수"), QStringLiteral("김철수")}));
}

TEST_F(ContactsViewTest, AnEmptySearchShowsEverybodyAgain) {
  Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  SearchEdit().setText(QStringLiteral("Le"));
  View().Search();
  SearchEdit().clear();
  View().Search();
  EXPECT_EQ(g_list.RowsShown, 2);
  EXPECT_EQ(g_list.Filter, FilterKind::None);
}

TEST_F(ContactsViewTest, AnIndexButtonShowsItsRange) {
  Open({QStringLiteral("Adams"), QStringLiteral("Hill"), QStringLiteral("Jones"),
        QStringLiteral("Nolan")});
  m_input.Tap(OnScreen(IndexStrip()) - QPoint(48, 0));  // the second of five
  EXPECT_EQ(g_list.IndexButton, 2);
  EXPECT_EQ(ShownNames(), (QStringList{QStringLiteral("Hill"), QStringLiteral("Jones")}));
  EXPECT_TRUE(IndexStrip().Rows()[1].State.testFlag(PaintedStateFlag::Checked));
}

TEST_F(ContactsViewTest, ByNameClearsSearchAndIndex) {
  Open({QStringLiteral("Adams"), QStringLiteral("Hill")});
  SearchEdit().setText(QStringLiteral("Hi"));
  View().Search();
  View().ChooseIndex(1);
  EXPECT_EQ(m_frame->RunCommand(ID_VIEW_BY_NAME), CommandResult::Done);
  EXPECT_TRUE(SearchEdit().text().isEmpty());
  EXPECT_EQ(g_list.RowsShown, 2);
  EXPECT_FALSE(IndexStrip().Rows()[0].State.testFlag(PaintedStateFlag::Checked));
}

TEST_F(ContactsViewTest, ANewShellShowsTheListAsItWas) {
  Open({}, 60);
  SearchEdit().setText(QStringLiteral("0"));
  View().Search();
  m_input.Key(Qt::Key_PageDown);
  const int top = g_list.Top;
  m_frame = std::make_unique<test::ViewFrame>(*m_screen);
  View().ShowState();
  EXPECT_EQ(SearchEdit().text(), QStringLiteral("0"));
  EXPECT_EQ(g_list.Top, top);
  EXPECT_EQ(ScrollBar().value(), top);
  EXPECT_EQ(List().Rows().front().Key, g_list.Rows[0].Oid);
}

TEST_F(ContactsViewTest, NoRequestOfAnotherProgramIsTakenYet) {
  Open();
  EXPECT_FALSE(View().OnCopyData(1, QStringLiteral("Kim")));
}

}  // namespace
}  // namespace quill
