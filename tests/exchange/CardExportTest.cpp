#include "exchange/CardExport.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include "exchange/CardSamples.h"
#include "exchange/CardWriter.h"
#include "store/CategoryText.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"

namespace quill::test {
namespace {

// A device that takes so many bytes and no more.
class SmallDevice : public QIODevice {
 public:
  explicit SmallDevice(qint64 room) : m_room(room) { open(QIODevice::WriteOnly); }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64 size) override {
    if (size > m_room) return -1;
    m_room -= size;
    return size;
  }

 private:
  qint64 m_room;
};

class CardExports : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
  }

  Oid Add(const QString& fileAs, const QString& categories = {}) {
    ContactItem item;
    item.Record[ContactField::FileAs] = fileAs;
    item.Record[ContactField::Categories] = categories;
    return m_store.Contacts()->SaveWhole(0, item);
  }

  // The names in the file, in its order.
  QStringList Export(const ExportOptions& options = {}) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const ExportSummary summary = ExportCards(m_gaps, buffer, options);
    EXPECT_EQ(summary.End, ExportEnd::All);
    QStringList names;
    for (const Card& card : ReadCards(buffer.data()))
      names += ContactFromCard(card).value_or(ContactItem()).Record[ContactField::FileAs];
    EXPECT_EQ(summary.Written, names.size());
    return names;
  }

  PimStore m_store{u":memory:"_qs};
  FaultyStore m_gaps{m_store};
};

TEST_F(CardExports, WriteEveryContactInTheOrderOfTheList) {
  Add(u"b"_qs);
  Add(u"a"_qs);
  EXPECT_EQ(Export(), (QStringList{u"a"_qs, u"b"_qs}));
}

TEST_F(CardExports, WriteAllThatTheStoreHolds) {
  ContactItem item;
  item.Record[ContactField::FileAs] = u"a"_qs;
  item.BodyInk = "Ink";
  item.CarriedLines = u"NOTE:x\n"_qs;
  m_store.Contacts()->SaveWhole(0, item);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  ExportOptions options;
  options.Version = CardVersion::V40;
  ExportCards(m_store, buffer, options);
  EXPECT_EQ(buffer.data().toStdString(), WriteCard(item, CardVersion::V40).toStdString());
}

TEST_F(CardExports, KeepToACategory) {
  Add(u"a"_qs, u"One, Two"_qs);
  Add(u"b"_qs, u"O\"ne"_qs);
  Add(u"c"_qs);
  ExportOptions options;
  options.Category = u"Two"_qs;
  EXPECT_EQ(Export(options), QStringList{u"a"_qs});
  options.Category = u"O\"ne"_qs;
  EXPECT_EQ(Export(options), QStringList{u"b"_qs});
  options.Category = kNoCategories.toString();
  EXPECT_EQ(Export(options), QStringList{u"c"_qs});
  options.Category = u"Three"_qs;
  EXPECT_EQ(Export(options), QStringList());
}

TEST_F(CardExports, KeepToANameWithinTheCategory) {
  Add(u"ann"_qs, u"One"_qs);
  Add(u"anna"_qs, u"Two"_qs);
  Add(u"bob"_qs, u"Two"_qs);
  ExportOptions options;
  options.Contact = u"an"_qs;
  EXPECT_EQ(Export(options), (QStringList{u"ann"_qs, u"anna"_qs}));
  options.Category = u"Two"_qs;
  EXPECT_EQ(Export(options), QStringList{u"anna"_qs});
}

TEST_F(CardExports, KeepToARestriction) {
  Add(u"ann"_qs, u"One"_qs);
  Add(u"bob"_qs, u"Two"_qs);
  Add(u"bill"_qs, u"One"_qs);
  ExportOptions options;
  options.Restriction = u"[FileAs] >= \"b\""_qs;
  EXPECT_EQ(Export(options), (QStringList{u"bill"_qs, u"bob"_qs}));
  options.Category = u"One"_qs;
  EXPECT_EQ(Export(options), QStringList{u"bill"_qs});
}

TEST_F(CardExports, FailWithARestrictionThatNobodyUnderstands) {
  ExportOptions options;
  options.Restriction = u"["_qs;
  options.Category = u"One"_qs;
  SmallDevice device(1'000'000);
  EXPECT_EQ(ExportCards(m_store, device, options).End, ExportEnd::StoreFailed);
}

TEST_F(CardExports, AskNowAndThenWhetherToGoOn) {
  for (int i = 0; i < 120; ++i) Add(u"a"_qs);
  ExportOptions options;
  std::vector<std::pair<int, int>> asked;
  options.Continue = [&asked](int done, int count) {
    asked.emplace_back(done, count);
    return done < 100;
  };
  SmallDevice device(1'000'000);
  const ExportSummary summary = ExportCards(m_store, device, options);
  EXPECT_EQ(summary.End, ExportEnd::Stopped);
  EXPECT_EQ(summary.Written, 100);
  EXPECT_EQ(asked, (std::vector<std::pair<int, int>>{{50, 120}, {100, 120}}));
}

TEST_F(CardExports, TellThatTheDeviceTookNoMore) {
  Add(u"a"_qs);
  Add(u"b"_qs);
  SmallDevice device(100);
  const ExportSummary summary = ExportCards(m_store, device, {});
  EXPECT_EQ(summary.End, ExportEnd::DeviceFailed);
  EXPECT_EQ(summary.Written, 1);
}

TEST_F(CardExports, TellThatAContactCouldNotBeRead) {
  Add(u"a"_qs);
  m_gaps.Faults().Read = Add(u"b"_qs);
  SmallDevice device(1000);
  const ExportSummary summary = ExportCards(m_gaps, device, {});
  EXPECT_EQ(summary.End, ExportEnd::StoreFailed);
  EXPECT_EQ(summary.Written, 1);
}

TEST_F(CardExports, TellThatTheChoiceFailed) {
  Add(u"a"_qs);
  m_gaps.Faults().Restrict = true;
  SmallDevice device(1000);
  ExportOptions options;
  options.Category = u"One"_qs;
  EXPECT_EQ(ExportCards(m_gaps, device, options).End, ExportEnd::StoreFailed);
}

TEST_F(CardExports, TellThatNothingCouldBeRead) {
  const auto other = m_store.Begin();
  SmallDevice device(1000);
  const ExportSummary summary = ExportCards(m_store, device, {});
  EXPECT_EQ(summary.End, ExportEnd::StoreFailed);
  EXPECT_EQ(summary.StoreError, m_store.LastError());
  EXPECT_FALSE(summary.StoreError.isEmpty());
}

TEST_F(CardExports, EndTheirReading) {
  Add(u"a"_qs);
  Export();
  EXPECT_TRUE(m_store.Begin());
}

}  // namespace
}  // namespace quill::test
