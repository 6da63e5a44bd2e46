// Which contacts of the store are a card's person.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

#include "store/StoreProvider.h"

namespace quill {

// Two numbers are the same when these are: without blanks and signs, letters without case. Two
// e-mail addresses are without case. Both empty for an empty text.
QString NumberKey(const QString& number);
QString EmailKey(const QString& email);
// Of all that a record has, without empty ones.
QStringList NumberKeys(const ContactRecord& record);
QStringList EmailKeys(const ContactRecord& record);

struct KnownContact {
  Oid Id = 0;
  ContactItem Item;
};

// Looks people up for as long as an import takes. Of a name that many contacts have it reads them
// all once and keeps their numbers and addresses, so that many cards of one name are not compared
// with each other.
class ContactMatch {
 public:
  static constexpr qsizetype kMaxFound = 16;

  // The folder outlives this.
  explicit ContactMatch(ContactsFolder& contacts) : m_contacts(contacts) {}

  // The contacts with the item's UID, else those with its FileAs that have a number or an e-mail
  // address in common with it, or have none and an equal record. In Oid order, the first kMaxFound.
  std::vector<KnownContact> Find(const ContactItem& item);

  // A contact that was written meanwhile; Forget when there may be others.
  void Note(Oid oid, const ContactRecord& record);
  void Forget();

 private:
  using Index = QHash<QString, QList<Oid>>;  // of one name: by key, the first kMaxFound

  bool Read(Oid oid, std::vector<KnownContact>& found) const;
  std::vector<Oid> Candidates(const ContactRecord& record);
  void MakeIndex(const QString& fileAs, const std::vector<Oid>& oids);
  void Enter(Index& index, Oid oid, const ContactRecord& record);

  ContactsFolder& m_contacts;
  QHash<QString, Index> m_indexes;  // of the names of many contacts
  qsizetype m_entered = 0;          // in all of them
};

}  // namespace quill
