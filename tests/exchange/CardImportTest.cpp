#include "exchange/CardImport.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>

#include "exchange/CardSamples.h"
#include "exchange/PatternDevice.h"
#include "exchange/RefusingStore.h"
#include "store/pim/PimStore.h"

namespace quill::test {
namespace {

class CardImports : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
  }

  ImportSummary Import(const QByteArray& bytes, const ImportOptions& options = {}) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return ImportCards(buffer, m_refusing, options);
  }

  int Count() { return m_store.Contacts()->Count(m_store.Contacts()->Items()); }

  // The only contact of this name.
  ContactItem Only(const QString& fileAs) {
    const auto found = m_store.Contacts()->FindByFileAs(fileAs);
    ContactItem item;
    EXPECT_EQ(found.size(), 1U);
    EXPECT_TRUE(!found.empty() && m_store.Contacts()->Read(found.front(), item));
    return item;
  }

  PimStore m_store{u":memory:"_qs};
  RefusingStore m_refusing{m_store};
};

QByteArray CardText(const QByteArray& properties) {
  return "BEGIN:VCARD\nVERSION:3.0\n" + properties + "END:VCARD\n";
}

QByteArray NumberedCards(int count) {
  QByteArray bytes;
  for (int i = 0; i < count; ++i) {
    const QByteArray number = QByteArray::number(i);
    bytes += CardText("N:Person;" + number + ";;;\nTEL:" + number + "\n");
  }
  return bytes;
}

TEST_F(CardImports, StoreAllThatACardHolds) {
  const ImportSummary summary = Import(CardText(
      "N:Doe;Jane;;;\nUID:u1\nTEL;TYPE=CELL:1\nBDAY:2001-02-03\nX-QUILL-INK;ENCODING=b:SW5r\n"
      "NOTE:kept\n"));
  EXPECT_EQ(summary.New, 1);
  EXPECT_EQ(summary.End, ImportEnd::WholeFile);
  const auto found = m_store.Contacts()->FindByUid(u"u1"_qs);
  ASSERT_EQ(found.size(), 1U);
  ContactItem item;
  ASSERT_TRUE(m_store.Contacts()->Read(found.front(), item));
  EXPECT_EQ(item.Record[ContactField::FileAs], u"Doe, Jane");
  EXPECT_EQ(item.Record[ContactField::MobileTelephoneNumber], u"1");
  EXPECT_EQ(item.Record.Birthday.Day, 3);
  EXPECT_EQ(item.BodyInk, "Ink");
  EXPECT_EQ(item.CarriedLines, u"NOTE:kept\n");
}

TEST_F(CardImports, ReportACardThatHoldsNothingAndGoOn) {
  const ImportSummary summary =
      Import(CardText("FN:One\n") + "\n" + CardText("NOTE:x\n") + CardText("FN:Two\n"));
  EXPECT_EQ(summary.New, 2);
  EXPECT_EQ(summary.Unreadable, 1);
  ASSERT_EQ(summary.UnreadableCards.size(), 1U);
  EXPECT_EQ(summary.UnreadableCards.front().Ordinal, 2);
  EXPECT_EQ(summary.UnreadableCards.front().Line, 6);
  EXPECT_EQ(summary.UnreadableCards.front().Fault, CardFault::NothingToFile);
}

TEST_F(CardImports, ReportACardThatTheStoreRefusesAndGoOn) {
  m_refusing.Refuse(u"Two"_qs);
  const ImportSummary summary =
      Import(CardText("FN:One\n") + CardText("FN:Two\n") + CardText("FN:Three\n"));
  EXPECT_EQ(summary.New, 2);
  ASSERT_EQ(summary.UnreadableCards.size(), 1U);
  EXPECT_EQ(summary.UnreadableCards.front().Line, 5);
  EXPECT_EQ(summary.UnreadableCards.front().Fault, CardFault::NotStored);
}

TEST_F(CardImports, NameTheCardsThatTheyReport) {
  m_refusing.Refuse(u"Two"_qs);
  const ImportSummary summary =
      Import(CardText("FN:Two\n") + CardText("NICKNAME:Jay\n") +
             CardText("FN:Three\n" + QByteArray("TEL:1\n").repeated(6000)) + CardText("NOTE:x\n"));
  QStringList names;
  for (const UnreadableCard& card : summary.UnreadableCards) names.append(card.Name);
  EXPECT_EQ(names, (QStringList{u"Two"_qs, u"Jay"_qs, u"Three"_qs, QString()}));
}

TEST_F(CardImports, KeepTheCardsThatCouldNotBeRead) {
  QBuffer rejects;
  rejects.open(QIODevice::WriteOnly);
  ImportOptions options;
  options.Rejects = &rejects;
  m_refusing.Refuse(u"Two"_qs);
  const QByteArray refused = CardText("FN:Two\r\n\n");
  const QByteArray empty = CardText("NOTE:caf\xE9\n x").chopped(1);
  Import(CardText("FN:One\n") + refused + CardText("FN:Three\n") + empty, options);
  EXPECT_EQ(rejects.data(), refused + empty + '\n');
}

TEST_F(CardImports, ReportTheLineAtWhichACardFailed) {
  const QByteArray much = "TEL:1\n";
  PatternDevice device(much, 6000, 4096, "END:VCARD\nFN:Next\n");
  const ImportSummary stray = ImportCards(device, m_refusing, {});
  EXPECT_EQ(stray.LinesNotUnderstood, 6001);  // with END: a TEL begins no card
  const ImportSummary summary = Import("BEGIN:VCARD\n" + much.repeated(6000) + "END:VCARD\n");
  ASSERT_EQ(summary.UnreadableCards.size(), 1U);
  EXPECT_EQ(summary.UnreadableCards.front().Line, 5002);
  EXPECT_EQ(summary.UnreadableCards.front().Fault, CardFault::TooManyLines);
}

TEST_F(CardImports, CountLinesNotUnderstoodInsideAndOutsideOfCards) {
  EXPECT_EQ(Import("stray\n" + CardText("FN:One\nbad\nworse\n")).LinesNotUnderstood, 3);
}

TEST_F(CardImports, ChangeNothingWhenTheSameFileComesAgain) {
  QByteArray bytes = NumberedCards(20) + CardText("FN:No Number\n") + CardText("ADR:;;;Oslo\n") +
                     CardText("UID:u1\nFN:Marked\n");
  EXPECT_EQ(Import(bytes).New, 23);
  const ImportSummary again = Import(bytes);
  EXPECT_EQ(again.New, 0);
  EXPECT_EQ(again.Same, 23);
  EXPECT_EQ(Count(), 23);
}

TEST_F(CardImports, MergeACardWhosePersonIsThere) {
  Import(CardText("UID:u1\nFN:Old Name\n"));
  const ImportSummary summary = Import(CardText("UID:u1\nFN:New Name\nTEL:1\n"));
  EXPECT_EQ(summary.New, 0);
  EXPECT_EQ(summary.Changed, 1);
  EXPECT_EQ(summary.Same, 0);
  const ContactItem item = Only(u"Old Name"_qs);
  EXPECT_EQ(item.Record[ContactField::HomeTelephoneNumber], u"1");
  EXPECT_EQ(item.CarriedLines, u"FN;X-QUILL-SPOKEN-FOR=789f0164:New Name\n");
  EXPECT_EQ(Import(CardText("UID:u1\nFN:New Name\nTEL:1\n")).Same, 1);
}

TEST_F(CardImports, LeaveAContactThatIsThereWhenToldToSkip) {
  ImportOptions options;
  options.Duplicates = OnDuplicate::Skip;
  Import(CardText("UID:u1\nFN:Old Name\n"));
  EXPECT_EQ(Import(CardText("UID:u1\nFN:New Name\nTEL:1\n"), options).Same, 1);
  EXPECT_EQ(Only(u"Old Name"_qs).CarriedLines, QString());
}

TEST_F(CardImports, AddEveryCardWhenToldTo) {
  ImportOptions options;
  options.Duplicates = OnDuplicate::Add;
  const QByteArray bytes = CardText("UID:u1\nFN:One\nTEL:1\n");
  EXPECT_EQ(Import(bytes + bytes, options).New, 2);
  EXPECT_EQ(Import(bytes, options).New, 1);
  EXPECT_EQ(Count(), 3);
}

TEST_F(CardImports, ChangeNothingTheSecondTimeAlsoWhereCardsMetEachOther) {
  // The third card brings the first two contacts' numbers together.
  const QByteArray bytes = CardText("FN:A\nTEL:1\n") + CardText("FN:A\nTEL:2\nTITLE:Cook\n") +
                           CardText("FN:A\nTEL:1\nTEL:2\n");
  const ImportSummary first = Import(bytes);
  EXPECT_EQ(first.New, 2);
  EXPECT_EQ(first.Changed, 1);
  EXPECT_EQ(Import(bytes).Same, 3);
}

TEST_F(CardImports, ReportAMergeThatTheStoreRefuses) {
  Import(CardText("FN:Two\nTEL:1\n"));
  m_refusing.Refuse(u"Two"_qs);
  const ImportSummary summary = Import(CardText("FN:Two\nTEL:1\nTITLE:x\n"));
  EXPECT_EQ(summary.Changed, 0);
  EXPECT_EQ(summary.Unreadable, 1);
}

struct MatchCase {
  const char* Name;
  const char* First;
  const char* Second;
  int Contacts;
};

class CardMatches : public CardImports, public testing::WithParamInterface<MatchCase> {};

TEST_P(CardMatches, DecideWhetherAPersonIsThere) {
  Import(CardText(GetParam().First));
  Import(CardText(GetParam().Second));
  EXPECT_EQ(Count(), GetParam().Contacts);
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, CardMatches,
    testing::Values(
        MatchCase{"SameUid", "UID:u\nFN:A\n", "UID:u\nFN:B\n", 1},
        MatchCase{"OtherUidSameNumber", "UID:u\nFN:A\nTEL:1\n", "UID:v\nFN:A\nTEL:1\n", 1},
        MatchCase{"NumberOtherwiseWritten", "FN:A\nTEL:02-1 2\n", "FN:A\nTEL;TYPE=WORK:(02) 12\n",
                  1},
        MatchCase{"EmailOtherwiseWritten", "FN:A\nEMAIL:a@b.c\n", "FN:A\nTEL:9\nEMAIL:A@B.c\n", 1},
        MatchCase{"OtherName", "FN:A\nTEL:1\n", "FN:B\nTEL:1\n", 2},
        MatchCase{"NothingShared", "FN:A\nTEL:1\n", "FN:A\nTEL:2\n", 2},
        MatchCase{"NumberOnlyInOne", "FN:A\nTEL:1\n", "FN:A\n", 2},
        MatchCase{"NameAlone", "FN:A\n", "FN:A\n", 1},
        MatchCase{"NameAndOtherTitle", "FN:A\nTITLE:x\n", "FN:A\nTITLE:y\n", 2}),
    [](const auto& match) { return std::string(match.param.Name); });

TEST_F(CardImports, BringTheCategoriesOfTheirContactsIntoTheLibrary) {
  const QStringList before = m_store.Categories()->Names();
  Import(CardText("FN:A\nTEL:1\nCATEGORIES:Golf,Work\n"));
  EXPECT_EQ(m_store.Categories()->Names(), before + QStringList{u"Golf"_qs});
  Import(CardText("FN:A\nTEL:1\nCATEGORIES:Art\n"));
  EXPECT_EQ(m_store.Categories()->Names(), before + QStringList({u"Golf"_qs, u"Art"_qs}));
}

TEST_F(CardImports, BringNoCategoryThatIsCalledAsTheMenusOwnEntriesAre) {
  const QStringList before = m_store.Categories()->Names();
  Import(CardText("FN:A\nTEL:1\nCATEGORIES:Show All,No Categories\n"));
  EXPECT_EQ(m_store.Categories()->Names(), before);
}

TEST_F(CardImports, LeaveTheLibraryAloneWhereContactsStayTheSame) {
  const QStringList before = m_store.Categories()->Names();
  const QByteArray bytes = CardText("FN:A\nTEL:1\nCATEGORIES:Golf\n");
  Import(bytes);
  ASSERT_TRUE(m_store.Categories()->SetNames(before));
  EXPECT_EQ(Import(bytes).Same, 1);
  EXPECT_EQ(m_store.Categories()->Names(), before);
}

TEST_F(CardImports, BringNoCategoriesFromATransactionThatFailed) {
  const QStringList before = m_store.Categories()->Names();
  m_refusing.FailCommit(1);
  Import(CardText("FN:A\nCATEGORIES:Golf\n"));
  EXPECT_EQ(m_store.Categories()->Names(), before);
}

// Another program that writes a contact between two transactions.
class ShiftingStore : public FaultyStore {
 public:
  ShiftingStore(StoreProvider& inner, ContactsFolder& other) : FaultyStore(inner), m_other(other) {}

  std::unique_ptr<StoreTransaction> Begin() override {
    if (++m_begun == 2) {
      EXPECT_NE(m_other.SaveWhole(0, ContactOf("FN:Kim\nTEL:77\n")), 0);
    }
    return FaultyStore::Begin();
  }

 private:
  ContactsFolder& m_other;
  int m_begun = 0;
};

void Open(PimStore& store) {
  ASSERT_EQ(store.Create(), 0);
  ASSERT_EQ(store.Logon(), 0);
  ASSERT_EQ(store.OpenFolder(FolderKind::Contacts), 0);
}

TEST(CardImportBesideAnother, SeesWhatTheOtherWroteBetweenTransactions) {
  const QTemporaryDir folder;
  PimStore own(folder.filePath(u"store.db"_qs));
  PimStore other(folder.filePath(u"store.db"_qs));
  Open(own);
  Open(other);
  ShiftingStore shifting(own, *other.Contacts());
  QByteArray bytes;
  for (int i = 0; i < 1000; ++i) {
    bytes += CardText("FN:Kim\nEMAIL:k" + QByteArray::number(i) + "@example.org\n");
  }
  bytes += CardText("FN:Kim\nTEL:77\n");
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  const ImportSummary summary = ImportCards(buffer, shifting, {});
  EXPECT_EQ(summary.New, 1000);
  EXPECT_EQ(summary.Same, 1);
}

TEST_F(CardImports, StopWhenToldAndKeepWhatWasCounted) {
  std::vector<qint64> asked;
  ImportOptions options;
  options.Continue = [&asked](const ImportProgress& progress) {
    asked.push_back(progress.Cards);
    EXPECT_GT(progress.BytesRead, 0);
    return progress.Cards < 100;
  };
  const ImportSummary summary = Import(NumberedCards(300), options);
  EXPECT_EQ(summary.End, ImportEnd::Stopped);
  EXPECT_EQ(asked, (std::vector<qint64>{50, 100}));
  EXPECT_EQ(summary.New, 100);
  EXPECT_EQ(Count(), 100);
}

TEST_F(CardImports, UseATransactionForEveryThousandCards) {
  EXPECT_EQ(Import(NumberedCards(2500)).New, 2500);
  EXPECT_EQ(m_refusing.Begun(), 3);
}

TEST_F(CardImports, DoNotCountTheCardsOfATransactionThatFailed) {
  m_refusing.FailCommit(2);
  const ImportSummary summary = Import(NumberedCards(2500));
  EXPECT_EQ(summary.End, ImportEnd::StoreFailed);
  EXPECT_EQ(summary.New, 1000);
  EXPECT_EQ(Count(), 1000);
}

TEST_F(CardImports, EndWhenNoTransactionCanBeBegun) {
  const auto other = m_store.Begin();
  ASSERT_TRUE(other);
  const ImportSummary summary = Import(NumberedCards(1));
  EXPECT_EQ(summary.End, ImportEnd::StoreFailed);
  EXPECT_EQ(summary.New, 0);
}

TEST_F(CardImports, TellThatTheFileCouldNotBeReadToItsEnd) {
  PatternDevice device(CardText("FN:One\n"), 1, 4096);
  device.FailAtEnd();
  const ImportSummary summary = ImportCards(device, m_refusing, {});
  EXPECT_EQ(summary.End, ImportEnd::DeviceFailed);
  EXPECT_EQ(summary.New, 1);
}

TEST_F(CardImports, ReadUndeclaredTextInTheChosenCharset) {
  ImportOptions options;
  options.FallbackCharset = "windows-1251";
  EXPECT_TRUE(Import(CardText("FN:\xC4\xE0\n"), options).IsGuessed);
  EXPECT_EQ(m_store.Contacts()->FindByFileAs(u"Да"_qs).size(), 1U);
}

TEST_F(CardImports, AreNoGuessWhereTheTextSaysHowItIsWritten) {
  EXPECT_FALSE(Import(CardText("FN:Gr\xC3\xBCn\n"), {}).IsGuessed);
  EXPECT_FALSE(Import(CardText("FN;CHARSET=latin1:Gr\xFCn\n"), {}).IsGuessed);
  EXPECT_TRUE(Import(CardText("FN;ENCODING=QUOTED-PRINTABLE:Gr=FCn\n"), {}).IsGuessed);
}

TEST(CardFaults, HaveEachAReasonInWords) {
  QStringList texts;
  for (const CardFault fault :
       {CardFault::LineTooLong, CardFault::CardTooLarge, CardFault::TooManyLines,
        CardFault::NestedTooDeep, CardFault::NothingToFile, CardFault::NotStored}) {
    texts.append(CardFaultText(fault));
  }
  EXPECT_FALSE(texts.contains(QString()));
  EXPECT_EQ(texts.removeDuplicates(), 0);
}

}  // namespace
}  // namespace quill::test
