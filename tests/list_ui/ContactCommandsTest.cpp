#include "list/ui/ContactCommands.h"

#include <QLabel>
#include <QPushButton>

#include "ViewFixture.h"
#include "list/Selection.h"
#include "settings/DeleteScope.h"
#include "support/InfraredLog.h"

namespace quill {
namespace {

class ContactCommandsTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    Open({QStringLiteral("Adams"), QStringLiteral("Gray"), QStringLiteral("Zed")});
  }

  // Runs the command; its confirmation must ask this and is answered by a key.
  void RunAndAnswer(int id, Qt::Key key, const QString& question) {
    test::Steps steps(*m_screen, {[&] {
      auto* const label =
          qobject_cast<QLabel*>(m_screen->Topmost()->Control(DeleteConfirmIds::kMessage));
      ASSERT_NE(label, nullptr);
      EXPECT_EQ(label->text(), question);
      m_input.Key(key);
    }});
    EXPECT_EQ(m_frame->RunCommand(id), CommandResult::Done);
  }
  bool IsEnabled(int id) { return m_frame->Route().State(id).Enabled; }

  const QString m_selectedQuestion =
      QStringLiteral("Selected item(s) would be permanently removed. Continue?");
  const QString m_allQuestion =
      QStringLiteral("All items in the list would be permanently Removed. Continue?");
};

TEST_F(ContactCommandsTest, DeletingIsEnabledWithASelectedRowAndDeletingAllWithAnItem) {
  EXPECT_FALSE(IsEnabled(ID_DELETE_ITEMS));
  EXPECT_TRUE(IsEnabled(ID_DELETE_ALL));
  SelectRow(g_list, 1);
  EXPECT_TRUE(IsEnabled(ID_DELETE_ITEMS));
  SearchEdit().setText(QStringLiteral("nobody"));
  View().Search();
  EXPECT_FALSE(IsEnabled(ID_DELETE_ITEMS));
  EXPECT_FALSE(IsEnabled(ID_DELETE_ALL));
  EXPECT_TRUE(IsEnabled(ID_COPY_CONTACT));
}

TEST_F(ContactCommandsTest, TheSelectedContactsAreDeletedAfterAnOK) {
  SelectRun(g_list, 0, 1);
  RunAndAnswer(ID_DELETE_ITEMS, Qt::Key_Return, m_selectedQuestion);
  EXPECT_EQ(ShownNames(), QStringList(QStringLiteral("Zed")));
}

TEST_F(ContactCommandsTest, WhatTakesTheDeletedRowsPlaceIsSelected) {
  SelectRun(g_list, 0, 1);
  RunAndAnswer(ID_DELETE_ITEMS, Qt::Key_Return, m_selectedQuestion);
  EXPECT_EQ(SingleSelectedRow(g_list), 0);
  EXPECT_TRUE(List().Rows()[0].State.testFlag(PaintedStateFlag::Selected));
}

TEST_F(ContactCommandsTest, AfterTheLastRowTheOneBeforeItIsSelected) {
  SelectRow(g_list, 2);
  RunAndAnswer(ID_DELETE_ITEMS, Qt::Key_Return, m_selectedQuestion);
  EXPECT_EQ(SingleSelectedRow(g_list), 1);
}

TEST_F(ContactCommandsTest, WhatWasSelectedIsDeletedAlsoWhenItHasLeftThePageMeanwhile) {
  SelectRun(g_list, 1, 2);
  test::Steps steps(*m_screen, {[this] {
    for (int i = 0; i < 20; ++i) Add(QStringLiteral("Abel %1").arg(i));
    View().Rebuild();
    ASSERT_TRUE(g_list.SelectedKeys.empty());
    m_input.Key(Qt::Key_Return);
  }});
  EXPECT_EQ(m_frame->RunCommand(ID_DELETE_ITEMS), CommandResult::Done);
  EXPECT_EQ(g_list.Total, 21);
}

TEST_F(ContactCommandsTest, ACancelDeletesNothing) {
  SelectRun(g_list, 0, 1);
  RunAndAnswer(ID_DELETE_ITEMS, Qt::Key_Escape, m_selectedQuestion);
  RunAndAnswer(ID_DELETE_ALL, Qt::Key_Escape, m_allQuestion);
  EXPECT_EQ(ShownNames().size(), 3);
}

TEST_F(ContactCommandsTest, ACurrentRowBesideTheListMakesDeletingAndCopyingDoNothing) {
  g_list.SelectedKeys = {g_list.Rows[0].Oid};
  m_frame->RunCommand(ID_DELETE_ITEMS);
  m_frame->RunCommand(ID_COPY_CONTACT);
  View().Rebuild();
  EXPECT_EQ(ShownNames().size(), 3);
}

TEST_F(ContactCommandsTest, AllListedContactsAreDeletedAfterAnOK) {
  View().ChooseIndex(2);
  RunAndAnswer(ID_DELETE_ALL, Qt::Key_Return, m_allQuestion);
  EXPECT_EQ(ShownNames(), QStringList());
  View().ShowMode(ViewMode::ByName);
  EXPECT_EQ(ShownNames(), QStringList({QStringLiteral("Adams"), QStringLiteral("Zed")}));
}

TEST_F(ContactCommandsTest, TheQuestionIsTheCommandsOwnWhateverWasAskedBefore) {
  SelectRow(g_list, 0);
  RunAndAnswer(ID_DELETE_ALL, Qt::Key_Escape, m_allQuestion);
  RunAndAnswer(ID_DELETE_ITEMS, Qt::Key_Escape, m_selectedQuestion);
}

TEST_F(ContactCommandsTest, ACopyStandsBesideItsOriginal) {
  SelectRow(g_list, 1);
  EXPECT_EQ(m_frame->RunCommand(ID_COPY_CONTACT), CommandResult::Done);
  EXPECT_EQ(ShownNames(), QStringList({QStringLiteral("Adams"), QStringLiteral("Gray"),
                                       QStringLiteral("Gray"), QStringLiteral("Zed")}));
}

TEST_F(ContactCommandsTest, AnEmptyListIsNotAskedAbout) {
  SearchEdit().setText(QStringLiteral("nobody"));
  View().Search();
  m_frame->RunCommand(ID_DELETE_ALL, CommandCheck::Anyway);
  View().ShowMode(ViewMode::ByName);
  EXPECT_EQ(ShownNames().size(), 3);
}

class InfraredCommands : public ContactCommandsTest {
 protected:
  void SetUp() override {
    ContactCommandsTest::SetUp();
    g_services.Infrared = &m_infrared;
    SelectRow(g_list, 2);
  }
  void TearDown() override { g_services.Infrared = nullptr; }
  static QString Adding(int row) { return QStringLiteral("add %1").arg(g_list.Rows[row].Oid); }

  test::InfraredLog m_infrared;
};

TEST_F(InfraredCommands, BeamTheSelectedContacts) {
  EXPECT_TRUE(IsEnabled(ID_BEAM_CONTACTS));
  g_list.SelectedKeys.push_back(g_list.Rows[0].Oid);
  EXPECT_EQ(m_frame->RunCommand(ID_BEAM_CONTACTS), CommandResult::Done);
  EXPECT_EQ(m_infrared.Asked,
            QStringList({QStringLiteral("open"), Adding(2), Adding(0), QStringLiteral("send")}));
}

TEST_F(InfraredCommands, BeamIsDisabledWithoutASelectionAndSendsNothing) {
  g_list.SelectedKeys.clear();
  EXPECT_EQ(m_frame->RunCommand(ID_BEAM_CONTACTS), CommandResult::Disabled);
  EXPECT_EQ(m_infrared.Asked, QStringList());
  EXPECT_EQ(m_frame->RunCommand(ID_BEAM_CONTACTS, CommandCheck::Anyway), CommandResult::Done);
  EXPECT_EQ(m_infrared.Asked, QStringList({QStringLiteral("open"), QStringLiteral("send")}));
}

TEST_F(InfraredCommands, Receive) {
  EXPECT_TRUE(IsEnabled(ID_RECEIVE_INFRARED));
  EXPECT_EQ(m_frame->RunCommand(ID_RECEIVE_INFRARED), CommandResult::Done);
  EXPECT_EQ(m_infrared.Asked, QStringList{QStringLiteral("receive")});
}

TEST_F(InfraredCommands, AreDisabledByMemoAndDoNothing) {
  View().ShowMode(ViewMode::ByMemo);
  g_list.SelectedKeys = {0};
  for (const int id : {ID_BEAM_CONTACTS, ID_RECEIVE_INFRARED}) {
    EXPECT_FALSE(IsEnabled(id)) << id;
    EXPECT_EQ(m_frame->RunCommand(id, CommandCheck::Anyway), CommandResult::Done);
  }
  EXPECT_EQ(m_infrared.Asked, QStringList());
}

TEST_F(InfraredCommands, TheConfigurationReceivesAtOnce) {
  const test::Steps steps(*m_screen, {[this] {
    CWindow& dialog = *m_screen->Topmost();
    qobject_cast<QPushButton*>(dialog.Control(ConfigIds::kReceive))->click();
    EXPECT_EQ(m_infrared.Asked, QStringList{QStringLiteral("receive")});
    dialog.OnCancel();
  }});
  m_frame->RunCommand(ID_CONFIGURATION);
}

}  // namespace
}  // namespace quill
