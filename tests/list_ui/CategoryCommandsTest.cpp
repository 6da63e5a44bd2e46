#include "list/ui/CategoryCommands.h"

#include <QPushButton>

#include "ViewFixture.h"
#include "editor/ui/EditRecordSheet.h"
#include "editor/ui/RecordRowList.h"
#include "platform/ui/CheckList.h"
#include "platform/ui/MenuPopup.h"
#include "store/Categories.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class CategoryCommandsTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open();
    AddIn(QStringLiteral("Work"), QStringLiteral("Adams"));
    AddIn(QStringLiteral("Work, Family"), QStringLiteral("Baker"));
    AddIn({}, QStringLiteral("Cole"));
    ASSERT_TRUE(SetUserCategories({QStringLiteral("Family"), QStringLiteral("Work")}));
    View().Rebuild();
  }

  void AddIn(const QString& categories, const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    record[ContactField::Categories] = categories;
    ASSERT_NE(m_store.Contacts()->Save(0, record, {}), 0);
  }

  // Opens the menu at the label and chooses this id, after a look at it.
  void Choose(int id, const std::function<void(const CMenuPopup&)>& look = {}) {
    test::Steps steps(*m_screen, {[&] {
      if (look) look(*m_screen->Popup());
      EXPECT_TRUE(m_screen->Popup()->Choose(id));
    }});
    m_input.Tap(OnScreen(CategoryLabel()));
  }

  // In the chooser that is open: gives the category of a row another name, or without one removes
  // it.
  void EditInChooser(int row, const QString& name) {
    const CWindow& chooser = *m_screen->Topmost();
    qobject_cast<CCheckList*>(chooser.Control(CategoryChooserIds::kList))->SetCurrent(row);
    if (!name.isEmpty())
      qobject_cast<QLineEdit*>(chooser.Control(CategoryChooserIds::kEdit))->setText(name);
    const int id = name.isEmpty() ? CategoryChooserIds::kRemove : CategoryChooserIds::kRename;
    qobject_cast<QPushButton*>(chooser.Control(id))->click();
  }
};

TEST_F(CategoryCommandsTest, TheMenuStandsBelowTheLabelAndListsTheLibrary) {
  Choose(107, [this](const CMenuPopup& menu) {
    const QPoint at = View().mapTo(m_screen, QPoint(158, 34));
    EXPECT_EQ(menu.y(), at.y());
    EXPECT_TRUE(menu.geometry().contains(at)) << "moved to the left where it would not fit";
    QStringList texts;
    for (const PaintedRow& row : menu.Rows())
      if (!row.SpokenName.isEmpty()) texts.append(row.SpokenName);
    EXPECT_EQ(texts, QStringList({QStringLiteral("Show All"), QStringLiteral("Family"),
                                  QStringLiteral("Work"), QStringLiteral("No Categories"),
                                  QStringLiteral("More...")}));
    EXPECT_TRUE(menu.Rows()[0].State.testFlag(PaintedStateFlag::Checked));
  });
}

TEST_F(CategoryCommandsTest, AChoiceShowsItsContactsAndEmptiesTheSearchBox) {
  SearchEdit().setText(QStringLiteral("x"));
  Choose(108);
  EXPECT_EQ(ShownNames(), QStringList(QStringLiteral("Baker")));
  EXPECT_EQ(SearchEdit().text(), QString());
  EXPECT_EQ(CategoryLabel().Rows()[0].Items[0].Text, QStringLiteral("Family"));
  EXPECT_EQ(ScrollBar().maximum(), 0);
}

TEST_F(CategoryCommandsTest, NoCategoriesShowsTheContactsWithoutOne) {
  Choose(110);
  EXPECT_EQ(ShownNames(), QStringList(QStringLiteral("Cole")));
}

TEST_F(CategoryCommandsTest, AChoiceTakesTheIndexButtonsPlace) {
  View().ChooseIndex(1);
  Choose(109);
  EXPECT_EQ(ShownNames(), QStringList({QStringLiteral("Adams"), QStringLiteral("Baker")}));
  EXPECT_EQ(g_list.IndexButton, 0);
}

TEST_F(CategoryCommandsTest, TheMenuKnowsCategoriesThatCameMeanwhile) {
  ASSERT_TRUE(SetUserCategories({QStringLiteral("New"), QStringLiteral("Work")}));
  Choose(109);
  EXPECT_EQ(g_list.CategoryName, QStringLiteral("Work"));
}

TEST_F(CategoryCommandsTest, ARenamedCategoryIsStillTheFilterAfterACancel) {
  Choose(109);
  test::Steps steps(*m_screen, {[&] {
    EditInChooser(1, QStringLiteral("Job"));
    m_input.Key(Qt::Key_Escape);
  }});
  m_frame->RunCommand(111);
  EXPECT_EQ(g_list.CategoryName, QStringLiteral("Job"));
  EXPECT_EQ(CategoryLabel().Rows()[0].Items[0].Text, QStringLiteral("Job"));
  EXPECT_EQ(ShownNames(), QStringList({QStringLiteral("Adams"), QStringLiteral("Baker")}));
  EXPECT_EQ(g_categoryMenu.Checked, (std::vector<bool>{false, false, true, false, false}));
}

TEST_F(CategoryCommandsTest, WithoutTheRemovedCategoryOfTheFilterAllAreShownAfterACancel) {
  test::ScriptedPrompt prompt({PromptAnswer::Yes});
  g_services.Prompt = &prompt;
  Choose(109);
  test::Steps steps(*m_screen, {[&] {
    EditInChooser(1, {});
    m_input.Key(Qt::Key_Escape);
  }});
  m_frame->RunCommand(111);
  EXPECT_EQ(g_list.CategoryName, QStringLiteral("Show All"));
  EXPECT_EQ(ShownNames().size(), 3);
}

TEST_F(CategoryCommandsTest, TheFilterFollowsACategoryThatIsRenamedInASheet) {
  Choose(109);
  for (const bool isOK : {false, true}) {
    test::Steps steps(*m_screen,
                      {[&] {
                         auto* const sheet = qobject_cast<CEditRecordSheet*>(m_screen->Topmost());
                         ASSERT_NE(sheet, nullptr);
                         sheet->ActivePage()->findChild<CRecordRowList*>()->StartEdit(10);
                         isOK ? sheet->OnOK() : sheet->OnCancel();
                       },
                       [&] {
                         EditInChooser(1, isOK ? QStringLiteral("Office") : QStringLiteral("Job"));
                         m_input.Key(Qt::Key_Escape);
                       }});
    m_input.Tap(OnRow(0));
    const QString name = isOK ? QStringLiteral("Office") : QStringLiteral("Job");
    EXPECT_EQ(g_list.CategoryName, name);
    EXPECT_EQ(CategoryLabel().Rows()[0].Items[0].Text, name);
    EXPECT_EQ(ShownNames(), QStringList({QStringLiteral("Adams"), QStringLiteral("Baker")}));
    EXPECT_EQ(g_categoryMenu.Checked, (std::vector<bool>{false, false, true, false, false}));
  }
}

TEST_F(CategoryCommandsTest, ByMemoTheCommandsAreIgnored) {
  Choose(107);
  View().ShowMode(ViewMode::ByMemo);
  m_frame->RunCommand(109, CommandCheck::Anyway);
  EXPECT_EQ(g_list.CategoryName, QStringLiteral("Show All"));
  EXPECT_EQ(g_list.Filter, FilterKind::None);
}

}  // namespace
}  // namespace quill
