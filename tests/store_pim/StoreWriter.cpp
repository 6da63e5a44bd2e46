// quill_store_writer STORE SEED SECONDS: a program that writes to a store at random, and tells each
// change on a line of its own once it is durable:
//   + OID NAME    a new contact      = OID NAME    renamed      - OID    deleted
// It changes its own contacts only. Exit code 1 when a write fails.
#include <QElapsedTimer>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "store/pim/PimStore.h"

namespace quill {
namespace {

class Writer {
 public:
  Writer(ContactsFolder& contacts, unsigned seed)
      : m_contacts(contacts), m_random(seed), m_prefix(QString::number(seed)) {}

  // False when the store refuses.
  bool ChangeSomething() {
    const auto choice = m_mine.empty() ? 0U : m_random() % 4;
    if (choice == 3) return Remove();
    return choice == 2 ? Rename() : Add();
  }

 private:
  ContactRecord NextRecord() {
    ContactRecord record;
    // Spread over the order, so that both writers meet in the same buckets.
    record[ContactField::FileAs] = QStringLiteral("%1 %2-%3")
                                       .arg(m_random() % 1000, 3, 10, QLatin1Char('0'))
                                       .arg(m_prefix)
                                       .arg(++m_made);
    record[ContactField::Categories] = m_made % 3 == 0 ? QString() : QStringLiteral("Work, Play");
    return record;
  }

  std::size_t Any() { return m_random() % m_mine.size(); }

  bool Add() {
    const ContactRecord record = NextRecord();
    const Oid oid = m_contacts.Save(0, record, {});
    if (oid != 0) m_mine.push_back(oid);
    return Tell('+', oid, record);
  }

  bool Rename() {
    const ContactRecord record = NextRecord();
    return Tell('=', m_contacts.Save(m_mine[Any()], record, {}), record);
  }

  bool Remove() {
    const auto place = m_mine.begin() + static_cast<std::ptrdiff_t>(Any());
    const Oid oid = *place;
    m_mine.erase(place);
    return Tell('-', m_contacts.Remove(oid) ? oid : 0, {});
  }

  static bool Tell(char change, Oid oid, const ContactRecord& record) {
    if (oid == 0) return false;
    std::printf("%c %d %s\n", change, oid, qUtf8Printable(record[ContactField::FileAs]));
    return std::fflush(stdout) == 0;
  }

  ContactsFolder& m_contacts;
  std::mt19937 m_random;
  QString m_prefix;
  int m_made = 0;
  std::vector<Oid> m_mine;
};

int Fail(const QString& reason) {
  std::fprintf(stderr, "quill_store_writer: %s\n", qUtf8Printable(reason));
  return 1;
}

int Write(const QString& path, unsigned seed, qint64 milliseconds) {
  PimStore store(path);
  for (const int code : {store.Create(), store.Logon(), store.OpenFolder(FolderKind::Contacts)}) {
    if (code != 0) return Fail(store.LastError());
  }
  Writer writer(*store.Contacts(), seed);
  QElapsedTimer timer;
  timer.start();
  while (timer.elapsed() < milliseconds) {
    if (!writer.ChangeSomething()) return Fail(store.LastError());
  }
  return 0;
}

}  // namespace
}  // namespace quill

int main(int argc, char** argv) {
  if (argc != 4) return quill::Fail(QStringLiteral("usage: STORE SEED SECONDS"));
  return quill::Write(QString::fromLocal8Bit(argv[1]), static_cast<unsigned>(std::atoi(argv[2])),
                      std::atoi(argv[3]) * 1000LL);
}
