#include "store/ui/CategoryChooser.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>

#include "platform/ui/CheckList.h"
#include "platform_ui/DialogFixture.h"
#include "store/Categories.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

constexpr int kList = 1000;
constexpr int kEdit = 1001;
constexpr int kAdd = 1002;
constexpr int kRename = 1003;
constexpr int kRemove = 1004;

const QString kWork = QStringLiteral("Work");
const QString kClub = QStringLiteral("Club");
const QString kJob = QStringLiteral("Job");

class CategoryChooserTest : public test::DialogFixture {
 protected:
  CategoryChooserTest() {
    g_services.Prompt = &m_prompt;
    EXPECT_EQ(OpenSession(m_store), StartupCode::Opened);
    EXPECT_TRUE(SetUserCategories({kWork, kClub}));
  }
  ~CategoryChooserTest() override { test::ResetProcessState(); }

  CCategoryChooser& Chooser() const {
    return dynamic_cast<CCategoryChooser&>(*m_screen->Topmost());
  }
  CCheckList& List() const { return Get<CCheckList>(Chooser(), kList); }
  QLineEdit& Editor() const { return Get<QLineEdit>(Chooser(), kEdit); }
  bool IsEnabled(int id) const { return Chooser().Control(id)->isEnabled(); }
  // The items as one text: a star before each that is checked, brackets around the current one.
  std::string Items() const {
    QStringList texts;
    for (std::size_t i = 0; i < List().Items().size(); ++i) {
      const CheckListItem& item = List().Items()[i];
      const QString text = (item.Checked ? QStringLiteral("*") : QString()) + item.Text;
      const bool isCurrent = static_cast<int>(i) == List().CurrentRow();
      texts.append(isCurrent ? QStringLiteral("[%1]").arg(text) : text);
    }
    return texts.join(u'|').toStdString();
  }
  void TapRow(const QString& name) { m_input.Tap(RowNamed(List(), name).center()); }
  void Tap(int id) { TapControl(Chooser(), id); }
  void TypeName(const QString& name) {
    Tap(kEdit);
    Editor().selectAll();
    m_input.Type(name);
  }
  void Close() { m_input.Key(Qt::Key_Escape); }

  // Runs the chooser with m_names; whether it was ended with OK.
  bool Run(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return Cate_ShowCategoryList(*m_screen, 1, m_names, m_positions);
  }
  Oid AddContact(const QString& categories) {
    ContactItem item;
    item.Record[ContactField::Categories] = categories;
    return m_store.Contacts()->SaveWhole(0, item);
  }
  QString CategoriesOf(Oid oid) {
    ContactItem item;
    EXPECT_TRUE(m_store.Contacts()->Read(oid, item));
    return item.Record[ContactField::Categories];
  }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  test::FaultyStore m_store{m_pimStore};
  test::ScriptedPrompt m_prompt;
  QString m_names;
  std::vector<int> m_positions{7};
};

TEST_F(CategoryChooserTest, OffersTheLibraryWithTheNamesHandedInChecked) {
  m_names = QStringLiteral("Other, Club");
  Run({[this] {
    EXPECT_EQ(Chooser().Caption(), QStringLiteral("Categories"));
    EXPECT_EQ(Chooser().Size(), WindowSize::FullScreen);
    EXPECT_EQ(Items(), "Work|*Club|No Categories|*Other");
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(Editor().text(), QString());
    Close();
  }});
}

TEST_F(CategoryChooserTest, OKGivesTheChosenNamesAndTheirPositions) {
  m_names = QStringLiteral("Club, Other");
  EXPECT_TRUE(Run({[this] {
                     TapRow(kWork);
                     TapRow(QStringLiteral("Other"));
                   },
                   [this] { Tap(kResultOK); }}));
  EXPECT_EQ(m_names, QStringLiteral("Work,Club"));
  EXPECT_EQ(m_positions, (std::vector<int>{0, 1, 35}));
}

TEST_F(CategoryChooserTest, OKWithNothingChosenGivesNothing) {
  m_names = kClub;
  EXPECT_TRUE(Run({[this] { TapRow(kClub); }, [this] { Tap(kResultOK); }}));
  EXPECT_EQ(m_names, QString());
  EXPECT_EQ(m_positions, std::vector<int>{35});
}

TEST_F(CategoryChooserTest, CancelLeavesWhatWasHandedIn) {
  m_names = QStringLiteral("Work, Club");
  EXPECT_FALSE(Run({[this] { TapRow(kWork); }, [this] { Tap(kResultCancel); }}));
  EXPECT_EQ(m_names, QStringLiteral("Work, Club"));
  EXPECT_EQ(m_positions, std::vector<int>{7});
}

TEST_F(CategoryChooserTest, TheEditorTakesTheNameOfTheCurrentRow) {
  Run({[this] {
    TapRow(kClub);
    EXPECT_EQ(Editor().text(), kClub);
    EXPECT_EQ(Editor().selectedText(), kClub);
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(Editor().text(), kWork);
    Close();
  }});
}

TEST_F(CategoryChooserTest, TheFirstTapIntoTheEditorLeavesTheOfferedNameToBeReplaced) {
  Run({[this] {
    TapRow(kClub);
    Tap(kEdit);
    m_input.Type(kJob);
    EXPECT_EQ(Editor().text(), kJob);
    Tap(kEdit);
    EXPECT_FALSE(Editor().hasSelectedText()) << "the second tap puts the caret";
    Close();
  }});
}

TEST_F(CategoryChooserTest, ItsButtonsAreEnabledWhenTheyHaveSomethingToDo) {
  const auto enabled = [this] {
    return std::vector<bool>{IsEnabled(kAdd), IsEnabled(kRename), IsEnabled(kRemove)};
  };
  Run({[&] {
    EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false}));
    TypeName(QStringLiteral(" "));
    EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false}));
    TypeName(kJob);
    EXPECT_EQ(enabled(), (std::vector<bool>{true, false, false}));
    TapRow(kClub);
    EXPECT_EQ(enabled(), (std::vector<bool>{true, true, true}));
    Editor().clear();
    EXPECT_EQ(enabled(), (std::vector<bool>{false, false, true}));
    TapRow(QStringLiteral("No Categories"));
    EXPECT_EQ(enabled(), (std::vector<bool>{true, false, false}));
    Close();
  }});
}

TEST_F(CategoryChooserTest, AnAddedCategoryIsCheckedAndCurrent) {
  EXPECT_TRUE(Run({[this] {
                     TapRow(kClub);
                     TypeName(QStringLiteral("  Job "));
                     Tap(kAdd);
                     EXPECT_EQ(Items(), "Work|*Club|[*Job]|No Categories");
                     EXPECT_EQ(Editor().selectedText(), kJob);
                   },
                   [this] { Tap(kResultOK); }}));
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub, kJob}));
  EXPECT_EQ(m_names, QStringLiteral("Club,Job"));
}

TEST_F(CategoryChooserTest, ANameThatOnlyTheContactHadIsAddedWhereItIsListed) {
  m_names = QStringLiteral("Other");
  Run({[this] {
    TapRow(QStringLiteral("Other"));
    Tap(kAdd);
    EXPECT_EQ(Items(), "Work|Club|[*Other]|No Categories");
    Close();
  }});
}

TEST_F(CategoryChooserTest, ARenamedCategoryKeepsItsCheckAndTakesItsContactsAlong) {
  const Oid contact = AddContact(QStringLiteral("Club,Other"));
  m_names = kClub;
  EXPECT_TRUE(Run({[this] {
                     TapRow(kClub);
                     TapRow(kClub);
                     TypeName(kJob);
                     Tap(kRename);
                     EXPECT_EQ(Items(), "Work|[*Job]|No Categories");
                   },
                   [this] { Tap(kResultOK); }}));
  EXPECT_EQ(m_names, kJob);
  EXPECT_EQ(UserCategories(), QStringList({kWork, kJob}));
  EXPECT_EQ(CategoriesOf(contact), QStringLiteral("Job,Other"));
}

TEST_F(CategoryChooserTest, RemovingAsksWithTheNumberOfContactsAndTakesItOffThem) {
  const Oid contact = AddContact(QStringLiteral("Club,Other"));
  AddContact(kClub);
  m_prompt.Expect(PromptAnswer::Yes);
  m_names = kClub;
  Run({[this] {
    TapRow(kClub);
    Tap(kRemove);
    EXPECT_EQ(Items(), "Work|No Categories");
    EXPECT_EQ(Editor().text(), QString());
    EXPECT_FALSE(IsEnabled(kRemove));
    Close();
  }});
  const PromptMessage& question = m_prompt.Shown().front();
  EXPECT_EQ(question.Text, CategoryRemovalQuestion(kClub, 2));
  EXPECT_EQ(question.Buttons, PromptButtons::YesNo);
  EXPECT_EQ(question.Icon, PromptIcon::Question);
  EXPECT_EQ(UserCategories(), QStringList(kWork));
  EXPECT_EQ(CategoriesOf(contact), QStringLiteral("Other"));
  EXPECT_EQ(m_names, kClub) << "it was cancelled";
}

TEST_F(CategoryChooserTest, WhoAskedIsToldOfRenamedAndRemovedCategoriesAlsoOnCancel) {
  m_prompt.Expect(PromptAnswer::Yes);
  QStringList told;
  const Steps running(*m_screen, {[&] {
    TapRow(kClub);
    TypeName(kJob);
    Tap(kRename);
    EXPECT_EQ(told, QStringList(QStringLiteral("Club>Job"))) << "at once";
    TypeName(QStringLiteral("Golf"));
    Tap(kAdd);
    TapRow(kWork);
    Tap(kRemove);
    Close();
  }});
  EXPECT_FALSE(Cate_ShowCategoryList(
      *m_screen, 1, m_names, m_positions,
      [&told](const QString& from, const QString& to) { told.append(from + u'>' + to); }));
  EXPECT_EQ(told, QStringList({QStringLiteral("Club>Job"), QStringLiteral("Work>")}));
}

TEST_F(CategoryChooserTest, NoLeavesTheCategory) {
  m_prompt.Expect(PromptAnswer::No);
  Run({[this] {
    TapRow(kClub);
    Tap(kRemove);
    EXPECT_EQ(Items(), "Work|[*Club]|No Categories");
    Close();
  }});
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub}));
}

TEST_F(CategoryChooserTest, AnEditThatIsRefusedIsExplainedAndChangesNothing) {
  for (int i = 0; i < 3; ++i) m_prompt.Expect(PromptAnswer::OK);
  Run({[this] {
    TypeName(QStringLiteral("A,B"));
    Tap(kAdd);
    TapRow(kWork);
    TypeName(kClub);
    Tap(kRename);
    m_store.Faults().Restrict = true;
    TypeName(kJob);
    Tap(kRename);
    EXPECT_EQ(Items(), "[*Work]|Club|No Categories");
    EXPECT_EQ(Editor().text(), kJob) << "so that it can be mended";
    Close();
  }});
  QStringList texts;
  for (const PromptMessage& message : m_prompt.Shown()) {
    texts.append(message.Text);
    EXPECT_EQ(message.Icon, PromptIcon::Warning);
  }
  EXPECT_EQ(texts, QStringList({CategoryEditRefusal(CategoryEdit::NotAName, QStringLiteral("A,B")),
                                CategoryEditRefusal(CategoryEdit::ExistsAlready, kClub),
                                CategoryEditRefusal(CategoryEdit::NotWritten, kJob)}));
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub}));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(CategoryChooserTest, OfAnEditThatIsRefusedNobodyIsTold) {
  m_prompt.Expect(PromptAnswer::No);
  m_prompt.Expect(PromptAnswer::OK);
  bool told = false;
  const Steps running(*m_screen, {[&] {
    TapRow(kWork);
    Tap(kRemove);
    TypeName(kClub);
    Tap(kRename);
    Close();
  }});
  Cate_ShowCategoryList(*m_screen, 1, m_names, m_positions,
                        [&told](const QString&, const QString&) { told = true; });
  EXPECT_FALSE(told);
}

TEST_F(CategoryChooserTest, ReturnAddsANameThatIsNewAndEndsTheDialogOtherwise) {
  EXPECT_TRUE(Run({[this] {
                     TypeName(kJob);
                     m_input.Key(Qt::Key_Return);
                     EXPECT_EQ(Items(), "Work|Club|[*Job]|No Categories");
                   },
                   [this] { m_input.Key(Qt::Key_Return); }}));
  EXPECT_EQ(m_names, kJob);
}

TEST_F(CategoryChooserTest, ReturnWithCtrlAddsNothing) {
  EXPECT_FALSE(Run({[this] {
    TypeName(kJob);
    m_input.Key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Items(), "Work|Club|No Categories");
    Close();
  }}));
}

TEST_F(CategoryChooserTest, ReturnInAnEmptyEditorOrInTheListIsOK) {
  EXPECT_TRUE(Run({[this] {
    Tap(kEdit);
    m_input.Key(Qt::Key_Return);
  }}));
  EXPECT_TRUE(Run({[this] {
    TypeName(kJob);
    List().setFocus();
    m_input.Key(Qt::Key_Return);
  }}));
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub}));
}

TEST_F(CategoryChooserTest, WithThePanelUpAllOfItStandsAboveThePanel) {
  Run({[this] {
    const int low = Chooser().Control(kAdd)->y();
    Tap(kEdit);
    ASSERT_TRUE(m_panel.IsUp());
    for (const auto& [id, control] : Chooser().Controls())
      EXPECT_LE(Chooser().geometry().top() + control->geometry().bottom(),
                m_panel.VisibleArea().bottom())
          << id;
    EXPECT_EQ(List().geometry(), QRect(0, 0, 240, 120));
    EXPECT_EQ(Chooser().Control(kAdd)->y(), low - 80);
    m_panel.Lower();
    EXPECT_EQ(List().geometry(), QRect(0, 0, 240, 200));
    EXPECT_EQ(Chooser().Control(kAdd)->y(), low);
    Close();
  }});
}

TEST_F(CategoryChooserTest, OpensAboveAPanelThatIsUp) {
  m_panel.Raise();
  Run({[this] {
    EXPECT_EQ(List().height(), 120);
    Close();
  }});
}

TEST_F(CategoryChooserTest, APenFindsTheButtonsWhereTheyAreWhileThePanelIsUp) {
  EXPECT_TRUE(Run({[this] {
                     TypeName(kJob);
                     Tap(kAdd);
                     EXPECT_TRUE(m_panel.IsUp());
                     EXPECT_TRUE(Editor().hasFocus());
                   },
                   [this] { Tap(kResultOK); }}));
  EXPECT_EQ(m_names, kJob);
}

TEST_F(CategoryChooserTest, WorksWithoutAnInputPanel) {
  g_services.InputPanel = nullptr;
  EXPECT_TRUE(Run({[this] { Tap(kResultOK); }}));
}

TEST_F(CategoryChooserTest, TheEditorSaysWhatItIsFor) {
  const CCategoryChooser chooser(*m_screen, QString());
  auto& editor = Get<QLineEdit>(chooser, kEdit);
  EXPECT_EQ(editor.placeholderText(), QStringLiteral("Name of a category"));
  EXPECT_EQ(editor.accessibleName(), QStringLiteral("Name of a category"));
}

}  // namespace
}  // namespace quill
