#include "list/ContactPopup.h"

#include <QFile>
#include <QTemporaryDir>

#include "list/ListTest.h"
#include "memo/MemoFolder.h"
#include "platform/CommandTarget.h"
#include "platform/DesktopDeviceFiles.h"

namespace quill {
namespace {

// The commands that are there already, as the list's window would have them.
class SomeCommands : public CommandTarget {
 public:
  SomeCommands()
      : CommandTarget({{ID_OPEN_APPOINTMENT_FIRST, ID_OPEN_APPOINTMENT_LAST, [](int) {}, {}},
                       {ID_DELETE_ITEMS, ID_DELETE_ITEMS, [](int) {}, {}}}) {}
};

class ContactPopup : public testing::Test {
 protected:
  void SetUp() override { m_route.Add(m_commands); }

  SomeCommands m_commands;
  CommandRoute m_route;
};

TEST_F(ContactPopup, HasTheMenusItems) {
  const std::vector<MenuItem> items = BuildContactPopup({}, m_route);
  QStringList texts;
  for (const MenuItem& item : items) texts.append(item.Text);
  EXPECT_EQ(texts, QStringList({QStringLiteral("Appointment: 0"),
                                QStringLiteral("Memo: 0"),
                                {},
                                QStringLiteral("Add Appoint..."),
                                QStringLiteral("Add Memo..."),
                                {},
                                QStringLiteral("Beam Contact..."),
                                QStringLiteral("Copy Contact"),
                                QStringLiteral("Delete Contact")}));
  EXPECT_TRUE(items.back().Enabled);
  EXPECT_FALSE(items[7].Enabled);
}

TEST_F(ContactPopup, AKindWithoutItemsCannotBeOpened) {
  const std::vector<MenuItem> items = BuildContactPopup({}, m_route);
  EXPECT_FALSE(items[0].Enabled);
  EXPECT_FALSE(items[1].Enabled);
}

TEST_F(ContactPopup, EachLinkedItemHasTheNextCommand) {
  const LinkedItems linked{.Appointments = {7, 9},
                           .Subjects = {QStringLiteral("(Kim) tea"), QStringLiteral("(Kim) & co")},
                           .AppointmentCount = 2,
                           .Memos = {QStringLiteral("Kim_1.pwi")},
                           .MemoCount = 1};
  const std::vector<MenuItem> items = BuildContactPopup(linked, m_route);
  EXPECT_EQ(items[0].Text, QStringLiteral("Appointment: 2"));
  EXPECT_TRUE(items[0].Enabled);
  ASSERT_EQ(items[0].Items.size(), 2U);
  EXPECT_EQ(items[0].Items[0].Id, 33001);
  EXPECT_EQ(items[0].Items[1].Id, 33002);
  EXPECT_EQ(items[0].Items[1].Text, QStringLiteral("(Kim) & co"));
  EXPECT_TRUE(items[0].Items[1].Enabled);
  EXPECT_EQ(items[1].Text, QStringLiteral("Memo: 1"));
  ASSERT_EQ(items[1].Items.size(), 1U);
  EXPECT_EQ(items[1].Items[0].Id, 33201);
  EXPECT_FALSE(items[1].Items[0].Enabled);  // nothing on this route opens a memo
}

class LinkedItemsOf : public test::ListTest {
 protected:
  void SetUp() override {
    ListTest::SetUp();
    g_services.Files = &m_files;
    FixMemoFolder(g_memo);
  }

  void AddAppointment(const QString& subject) {
    ASSERT_NE(m_store.Calendar()->Save({.Subject = subject}), 0);
  }
  void AddMemo(const QString& name) {
    ASSERT_TRUE(m_files.WriteWhole(MemoPath(g_memo, name), "x"));
  }

  QTemporaryDir m_home;
  DesktopDeviceFiles m_files{
      {.Device = m_home.path(), .MyDocuments = m_home.filePath(QStringLiteral("My Documents"))}};
};

TEST_F(LinkedItemsOf, AContactAreItsAppointmentsAndMemos) {
  AddAppointment(QStringLiteral("(김) tea"));
  AddAppointment(QStringLiteral("(Kim) b"));
  AddAppointment(QStringLiteral("(Kim2) a"));
  AddMemo(QStringLiteral("Kim_2.pwi"));
  AddMemo(QStringLiteral("Kim_1.pwi"));
  AddMemo(QStringLiteral("Lee_1.pwi"));
  const LinkedItems linked = FindLinkedItems(QStringLiteral("Kim"));
  EXPECT_EQ(linked.Appointments, std::vector<Oid>({2, 3}));
  EXPECT_EQ(linked.Subjects, test::NameList({u"(Kim) b", u"(Kim2) a"}));
  EXPECT_EQ(linked.AppointmentCount, 2);
  EXPECT_EQ(linked.Memos, test::NameList({u"Kim_1.pwi", u"Kim_2.pwi"}));
  EXPECT_EQ(linked.MemoCount, 2);
  EXPECT_EQ(FindLinkedItems(QStringLiteral("김")).AppointmentCount, 1);
}

TEST_F(LinkedItemsOf, AContactWithoutAnyAreNone) {
  const LinkedItems linked = FindLinkedItems(QStringLiteral("Kim"));
  EXPECT_EQ(linked.AppointmentCount + linked.MemoCount, 0);
  EXPECT_TRUE(linked.Subjects.isEmpty());
  EXPECT_TRUE(linked.Memos.isEmpty());
}

TEST_F(LinkedItemsOf, AContactHasNoAppointmentsWithoutASession) {
  AddAppointment(QStringLiteral("(Kim)"));
  CloseSession();
  EXPECT_EQ(FindLinkedItems(QStringLiteral("Kim")).AppointmentCount, 0);
}

TEST_F(LinkedItemsOf, FindingThemLeavesTheStoreToWrite) {
  FindLinkedItems(QStringLiteral("Kim"));
  AddAppointment(QStringLiteral("(Kim)"));
  EXPECT_EQ(FindLinkedItems(QStringLiteral("Kim")).AppointmentCount, 1);
}

TEST_F(LinkedItemsOf, MoreThanTwoHundredAreCountedAndTheFirstAreOffered) {
  const auto transaction = m_store.Begin();
  for (int i = 0; i < 205; ++i) AddAppointment(QStringLiteral("(Kim) %1").arg(i));
  ASSERT_TRUE(transaction->Commit());
  for (int i = 0; i < 203; ++i) {
    QFile file(m_home.filePath(QStringLiteral("My Documents/Fennick/Kim_%1.pwi").arg(1000 + i)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  const LinkedItems linked = FindLinkedItems(QStringLiteral("Kim"));
  EXPECT_EQ(linked.AppointmentCount, 205);
  EXPECT_EQ(linked.Appointments.size(), 200U);
  EXPECT_EQ(linked.Subjects.size(), 200);
  EXPECT_EQ(linked.MemoCount, 203);
  EXPECT_EQ(linked.Memos.size(), 200);
  const std::vector<MenuItem> items = BuildContactPopup(linked, {});
  EXPECT_EQ(items[0].Text, QStringLiteral("Appointment: 205"));
  EXPECT_EQ(items[0].Items.back().Id, ID_OPEN_APPOINTMENT_LAST);
  EXPECT_EQ(items[1].Items.back().Id, ID_OPEN_MEMO_LAST);
}

}  // namespace
}  // namespace quill
