#include "store/ContactStore.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/Services.h"
#include "store/ContactFields.h"
#include "store/pim/PimStore.h"
#include "support/FreshState.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

// Fails in one step and says which steps it saw.
class FailingProvider : public PimStore {
 public:
  FailingProvider(int step, int code)
      : PimStore(QStringLiteral(":memory:")), m_step(step), m_code(code) {}

  int Create() override {
    return Step(1, [this] { return PimStore::Create(); });
  }
  int Logon() override {
    return Step(2, [this] { return PimStore::Logon(); });
  }
  int OpenFolder(FolderKind kind) override {
    return Step(kind == FolderKind::Contacts ? 3 : 4,
                [this, kind] { return PimStore::OpenFolder(kind); });
  }
  void Close() override {
    ++Closes;
    PimStore::Close();
  }

  std::vector<int> Steps;
  int Closes = 0;

 private:
  template <typename Call>
  int Step(int step, Call call) {
    Steps.push_back(step);
    return step == m_step ? m_code : call();
  }

  int m_step;
  int m_code;
};

class ContactStore : public test::FreshState {
 protected:
  ContactStore() : m_store(m_folder.filePath(QStringLiteral("store.db"))) {
    g_services.Prompt = &m_prompt;
  }
  ~ContactStore() override { CloseSession(); }

  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }

  Oid Add(const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    WriteContact(0, record);
    return ReadListRow(ContactSelector(Found(fileAs), 1), record);
  }

  static ContactCollection Found(const QString& fileAs) {
    return RestrictContacts(AllContacts(), QStringLiteral("[FileAs] = \"%1\"").arg(fileAs));
  }

  QTemporaryDir m_folder;
  test::ScriptedPrompt m_prompt;
  PimStore m_store;
};

struct StartupCase {
  int Step;
  int Code;
  QString Message;
};

class Startup : public test::FreshState, public testing::WithParamInterface<StartupCase> {};

TEST_P(Startup, StopsAtTheStepThatFails) {
  const StartupCase& startup = GetParam();
  test::ScriptedPrompt prompt;
  if (startup.Step == 1) prompt.Expect(PromptAnswer::OK);
  g_services.Prompt = &prompt;
  FailingProvider provider(startup.Step, startup.Code);

  EXPECT_EQ(OpenSession(provider), static_cast<StartupCode>(startup.Step));

  EXPECT_EQ(provider.Steps.size(), static_cast<std::size_t>(startup.Step));
  EXPECT_EQ(provider.Closes, 1);
  EXPECT_EQ(g_store.Provider, nullptr);
  EXPECT_EQ(g_store.Message, startup.Message);
  ASSERT_EQ(prompt.Shown().size(), startup.Step == 1 ? 1U : 0U);
  for (const PromptMessage& shown : prompt.Shown()) EXPECT_EQ(shown.Text, startup.Message);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, Startup,
    testing::Values(StartupCase{1, 14, QStringLiteral("Error occurred [001:14]")},
                    StartupCase{2, 26, QStringLiteral("Error occurred [002:26]")},
                    StartupCase{3, 11, QStringLiteral("Error occurred [003:11]")},
                    StartupCase{4, -2147467259,
                                QStringLiteral("Error occurred [004:-2147467259]")}));

TEST_F(Startup, GoesThroughTheFourStepsInTheirOrder) {
  FailingProvider provider(0, 0);
  EXPECT_EQ(OpenSession(provider), StartupCode::Opened);
  EXPECT_EQ(provider.Steps, std::vector<int>({1, 2, 3, 4}));
  EXPECT_EQ(g_store.Provider, &provider);
  EXPECT_TRUE(g_store.Message.isEmpty());
  CloseSession();
  EXPECT_EQ(provider.Closes, 1);
  EXPECT_EQ(g_store.Provider, nullptr);
}

TEST_F(Startup, ASecondSessionClosesTheFirst) {
  FailingProvider first(0, 0);
  FailingProvider second(0, 0);
  OpenSession(first);
  OpenSession(second);
  EXPECT_EQ(first.Closes, 1);
  EXPECT_EQ(g_store.Provider, &second);
  CloseSession();
}

TEST_F(Startup, AFailureWithoutAPromptIsOnlyKept) {
  FailingProvider provider(1, 5);
  EXPECT_EQ(OpenSession(provider), StartupCode::CreateFailed);
  EXPECT_EQ(g_store.Message, QStringLiteral("Error occurred [001:5]"));
}

TEST_F(Startup, WithoutASessionNothingIsThereAndNothingHappens) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  const ContactRecord before = record;
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(Count(AllContacts()), 0);
  EXPECT_EQ(ReadContact(ContactSelector(AllContacts(), 1), record), 0);
  EXPECT_EQ(ReadListRow(ContactSelector(1), record), 0);
  WriteContact(0, record);
  EXPECT_FALSE(DeleteContact(1));
  EXPECT_EQ(record, before);
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(ContactStore, AContactIsReadByPositionAndByOid) {
  Add(QStringLiteral("Young"));
  const Oid adams = Add(QStringLiteral("Adams"));
  ContactRecord record;
  EXPECT_EQ(ReadContact(ContactSelector(AllContacts(), 1), record), adams);
  EXPECT_EQ(record[ContactField::FileAs], QStringLiteral("Adams"));
  ContactRecord again;
  EXPECT_EQ(ReadContact(ContactSelector(adams), again), adams);
  EXPECT_EQ(again, record);
}

TEST_F(ContactStore, AFailedReadLeavesTheRecordAndDropsTheInk) {
  Add(QStringLiteral("Kim"));
  ContactRecord record;
  record[ContactField::Title] = QStringLiteral("Dr.");
  const ContactRecord before = record;
  const ContactCollection all = AllContacts();
  for (const ContactSelector& selector :
       {ContactSelector(all, 0), ContactSelector(all, -1), ContactSelector(all, 2),
        ContactSelector(0), ContactSelector(-1), ContactSelector(99)}) {
    g_contactInk.Bytes = "ink";
    EXPECT_EQ(ReadListRow(selector, record), 0);
    EXPECT_EQ(g_contactInk.Count(), 3);
    EXPECT_EQ(ReadContact(selector, record), 0);
    EXPECT_EQ(g_contactInk.Count(), 0);
    EXPECT_EQ(record, before);
  }
}

TEST_F(ContactStore, ADeletedContactIsNotReadAgain) {
  const Oid kim = Add(QStringLiteral("Kim"));
  EXPECT_TRUE(DeleteContact(kim));
  ContactRecord record;
  EXPECT_EQ(ReadContact(ContactSelector(kim), record), 0);
  EXPECT_FALSE(DeleteContact(kim));
  EXPECT_EQ(Count(AllContacts()), 0);
}

TEST_F(ContactStore, TheInkTravelsInTheBlob) {
  const QByteArray ink("\0ink\xFF", 5);
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  g_contactInk.Bytes = ink;
  const Oid written = WriteContact(0, record);
  EXPECT_NE(written, 0);
  EXPECT_EQ(g_contactInk.Count(), 0);

  ContactRecord read;
  const Oid oid = ReadContact(ContactSelector(AllContacts(), 1), read);
  EXPECT_EQ(oid, written);
  EXPECT_EQ(g_contactInk.Bytes, ink);
  EXPECT_EQ(g_contactInk.Count(), 5);
}

TEST_F(ContactStore, ReadingAContactWithoutInkEmptiesTheBlob) {
  const Oid kim = Add(QStringLiteral("Kim"));
  g_contactInk.Bytes = "of somebody else";
  ContactRecord record;
  EXPECT_EQ(ReadContact(ContactSelector(kim), record), kim);
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(ContactStore, AListRowLeavesTheBlobBeAndCarriesItsFieldsOnly) {
  ContactRecord full;
  for (const ContactFieldRow& row : kContactFields) full[row.Field] = row.Property.toString();
  full.Birthday = {2000, 2, 2, 29, 0, 0, 0, 0};
  WriteContact(0, full);
  g_contactInk.Bytes = "kept";
  ContactRecord record;
  record[ContactField::Title] = QStringLiteral("left over");
  record.Anniversary.Year = 2000;
  EXPECT_NE(ReadListRow(ContactSelector(AllContacts(), 1), record), 0);
  EXPECT_EQ(g_contactInk.Bytes, "kept");
  EXPECT_EQ(record.Birthday, CalendarDate{});
  EXPECT_EQ(record.Anniversary, CalendarDate{});
  for (const ContactFieldRow& row : kContactFields) {
    const bool carried = row.InListRow() && row.WrittenBack();
    EXPECT_EQ(record[row.Field], carried ? row.Property.toString() : QString());
  }
}

TEST_F(ContactStore, ARestrictionThatMatchesNothingIsEmpty) {
  Add(QStringLiteral("Kim"));
  const ContactCollection none = Found(QStringLiteral("Nobody"));
  EXPECT_EQ(Count(none), 0);
  ContactRecord record;
  EXPECT_EQ(ReadListRow(ContactSelector(none, 1), record), 0);
}

TEST_F(ContactStore, ARestrictionThatCannotBeParsedIsEmpty) {
  Add(QStringLiteral("Kim"));
  EXPECT_EQ(Count(RestrictContacts(AllContacts(), QStringLiteral("[FileAs] ="))), 0);
  EXPECT_EQ(Count(RestrictContacts(AllContacts(), QStringLiteral("[Subject] = \"Kim\""))), 0);
  EXPECT_EQ(Count(AllContacts()), 1);
}

TEST_F(ContactStore, DefaultsOfANewContactAreEmpty) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  record.Birthday.Year = 2000;
  ReadNewContactDefaults(record);
  EXPECT_EQ(record, ContactRecord{});
  EXPECT_EQ(Count(AllContacts()), 0);
}

TEST_F(ContactStore, WritingAnUnknownContactWritesNothing) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(WriteContact(77, record), 0);
  EXPECT_EQ(Count(AllContacts()), 0);
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(ContactStore, ACopyIsWrittenAsANewContact) {
  const Oid kim = Add(QStringLiteral("Kim"));
  ContactRecord record;
  ReadContact(ContactSelector(kim), record);
  WriteContact(0, record);
  EXPECT_EQ(Count(Found(QStringLiteral("kim"))), 2);
}

}  // namespace
}  // namespace quill
