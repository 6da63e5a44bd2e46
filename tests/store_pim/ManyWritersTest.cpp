// Several programs on one store, and programs that are killed while they write: what was told as
// durable is there, and the counts of the list index are exact.
#include <gtest/gtest.h>

#include <QProcess>

#include <map>
#include <memory>

#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

// What the writers told, replayed.
class Told {
 public:
  void Replay(QByteArray line) {
    line.chop(1);
    const QByteArrayList words = line.split(' ');
    const Oid oid = words[1].toInt();
    if (line.startsWith('-')) {
      m_names.erase(oid);
    } else {
      m_names[oid] = QString::fromUtf8(line.mid(line.indexOf(' ', 2) + 1));
    }
    ++m_lines;
  }

  const std::map<Oid, QString>& Names() const { return m_names; }
  int Lines() const { return m_lines; }

 private:
  std::map<Oid, QString> m_names;
  int m_lines = 0;
};

std::map<Oid, QString> Stored(ContactsFolder& contacts) {
  std::map<Oid, QString> names;
  for (const Oid oid : test::Oids(contacts, contacts.Items())) {
    ContactRecord record;
    if (contacts.ReadListRow(oid, record)) names[oid] = record[ContactField::FileAs];
  }
  return names;
}

// Contacts that are in one of them only, or are named differently.
int Differences(const std::map<Oid, QString>& a, const std::map<Oid, QString>& b) {
  int differences = 0;
  for (const auto& [oid, name] : a) {
    const auto other = b.find(oid);
    if (other == b.end() || other->second != name) ++differences;
  }
  for (const auto& [oid, name] : b) differences += a.contains(oid) ? 0 : 1;
  return differences;
}

class ManyWriters : public test::TemporaryStore {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    m_store.Close();
  }

  std::unique_ptr<QProcess> StartWriter(int seed, int seconds) {
    auto writer = std::make_unique<QProcess>();
    writer->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    writer->start(QStringLiteral(QUILL_STORE_WRITER),
                  {Path(), QString::number(seed), QString::number(seconds)});
    EXPECT_TRUE(writer->waitForStarted());
    return writer;
  }

  // Whole lines that have come so far; a killed writer's last one may be torn.
  void ReplayLines(QProcess& writer) {
    while (writer.canReadLine()) m_told.Replay(writer.readLine());
  }

  void ExpectSoundStore() {
    ASSERT_EQ(test::OpenAll(m_store), 0) << m_store.LastError().toStdString();
    const StoreHealth health = m_store.Check();
    EXPECT_EQ(health.FileFaults, QStringList());
    EXPECT_EQ(health.IndexFaults, QStringList());
    EXPECT_EQ(Contacts().Count(Contacts().Items()), static_cast<int>(Stored(Contacts()).size()));
  }

  Told m_told;
};

TEST_F(ManyWriters, TwoForTenSecondsLoseNothingAndCountExactly) {
  const auto first = StartWriter(1, 10);
  const auto second = StartWriter(2, 10);
  for (QProcess* writer : {first.get(), second.get()}) {
    ASSERT_TRUE(writer->waitForFinished(60'000));
    EXPECT_EQ(writer->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(writer->exitCode(), 0);
    ReplayLines(*writer);
  }
  EXPECT_GT(m_told.Lines(), 100);
  ExpectSoundStore();
  EXPECT_EQ(Stored(Contacts()), m_told.Names());
}

TEST_F(ManyWriters, KilledInMidWriteLoseAtMostWhatWasNotToldYet) {
  for (int round = 1; round <= 10; ++round) {
    const auto first = StartWriter(2 * round, 60);
    const auto second = StartWriter(2 * round + 1, 60);
    // At another moment each time.
    const int enough = m_told.Lines() + 20 + 7 * round;
    while (m_told.Lines() < enough) {
      ASSERT_TRUE(first->canReadLine() || first->waitForReadyRead(30'000));
      ReplayLines(*first);
      ReplayLines(*second);
    }
    for (QProcess* writer : {first.get(), second.get()}) {
      writer->kill();
      ASSERT_TRUE(writer->waitForFinished(30'000));
      ReplayLines(*writer);
    }
    ExpectSoundStore();
    // Each may have been killed after a commit and before it told.
    EXPECT_LE(Differences(Stored(Contacts()), m_told.Names()), 2) << round;
    m_told = {};
    const auto transaction = m_store.Begin();
    for (const auto& [oid, name] : Stored(Contacts())) ASSERT_TRUE(Contacts().Remove(oid));
    ASSERT_TRUE(transaction->Commit());
    m_store.Close();
  }
}

}  // namespace
}  // namespace quill
