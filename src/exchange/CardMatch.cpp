#include "exchange/CardMatch.h"

#include <algorithm>
#include <utility>

#include "exchange/CardSlots.h"

namespace quill {

namespace {

constexpr std::size_t kFew = 8;             // contacts of one name that are simply read
constexpr qsizetype kMaxEntered = 200'000;  // keys held at once

template <typename Fields, typename Key>
QStringList KeysOf(const Fields& fields, Key key, const ContactRecord& record) {
  QStringList keys;
  for (const ContactField field : fields) keys.append(key(record[field]));
  keys.removeAll(QString());
  return keys;
}

// Records that are the same person have one of these in common.
QStringList PersonKeys(const ContactRecord& record) {
  const QStringList keys = NumberKeys(record) + EmailKeys(record);
  if (!keys.isEmpty()) return keys;
  return {QString::number(qHashRange(record.Texts.begin(), record.Texts.end()))};
}

bool IsSamePerson(const ContactRecord& a, const ContactRecord& b) {
  const QStringList keys = PersonKeys(b);
  const QStringList wanted = PersonKeys(a);
  const bool sharesOne = std::any_of(wanted.begin(), wanted.end(),
                                     [&keys](const QString& key) { return keys.contains(key); });
  const bool hasReach = !NumberKeys(a).isEmpty() || !EmailKeys(a).isEmpty();
  return sharesOne && (hasReach || a == b);
}

}  // namespace

QString NumberKey(const QString& number) {
  QString key = number.toUpper();
  key.removeIf([](QChar c) { return !c.isLetterOrNumber() && c != u'*' && c != u'#'; });
  return key.isEmpty() ? number.trimmed() : key;
}

QString EmailKey(const QString& email) { return email.trimmed().toLower(); }

QStringList NumberKeys(const ContactRecord& record) {
  return KeysOf(kNumberFields, NumberKey, record);
}

QStringList EmailKeys(const ContactRecord& record) {
  return KeysOf(kEmailFields, EmailKey, record);
}

std::vector<KnownContact> ContactMatch::Find(const ContactItem& item) {
  std::vector<KnownContact> found;
  for (const Oid oid : m_contacts.FindByUid(item.Uid)) Read(oid, found);
  if (!found.empty()) return found;
  for (const Oid oid : Candidates(item.Record)) {
    if (Read(oid, found) && !IsSamePerson(item.Record, found.back().Item.Record)) found.pop_back();
  }
  return found;
}

bool ContactMatch::Read(Oid oid, std::vector<KnownContact>& found) const {
  KnownContact known{oid, {}};
  if (std::ssize(found) == kMaxFound || !m_contacts.Read(oid, known.Item)) return false;
  found.push_back(std::move(known));
  return true;
}

std::vector<Oid> ContactMatch::Candidates(const ContactRecord& record) {
  const QString& fileAs = record[ContactField::FileAs];
  auto index = m_indexes.constFind(fileAs);
  if (index == m_indexes.constEnd()) {
    const std::vector<Oid> oids = m_contacts.FindByFileAs(fileAs);
    if (oids.size() <= kFew) return oids;
    MakeIndex(fileAs, oids);
    index = m_indexes.constFind(fileAs);
  }
  std::vector<Oid> oids;
  for (const QString& key : PersonKeys(record)) {
    const QList<Oid> entered = index->value(key);
    oids.insert(oids.end(), entered.begin(), entered.end());
  }
  std::sort(oids.begin(), oids.end());
  oids.erase(std::unique(oids.begin(), oids.end()), oids.end());
  return oids;
}

void ContactMatch::MakeIndex(const QString& fileAs, const std::vector<Oid>& oids) {
  if (m_entered > kMaxEntered) Forget();
  Index& index = m_indexes[fileAs];
  for (const Oid oid : oids) {
    ContactItem item;
    if (m_contacts.Read(oid, item)) Enter(index, oid, item.Record);
  }
}

void ContactMatch::Note(Oid oid, const ContactRecord& record) {
  const auto index = m_indexes.find(record[ContactField::FileAs]);
  if (index != m_indexes.end()) Enter(*index, oid, record);
}

void ContactMatch::Forget() {
  m_indexes.clear();
  m_entered = 0;
}

void ContactMatch::Enter(Index& index, Oid oid, const ContactRecord& record) {
  for (const QString& key : PersonKeys(record)) {
    QList<Oid>& entered = index[key];
    if (entered.size() == kMaxFound || entered.contains(oid)) continue;
    entered.append(oid);
    ++m_entered;
  }
}

}  // namespace quill
