// Contacts as a grown address book holds them, made up: half have Latin names, a third Hangul ones,
// the rest are companies and bare numbers. A third are
// in no category, a tenth in two. Telephone numbers and mail addresses reach nobody.
#pragma once

#include <QString>

#include "Dice.h"
#include "store/StoreProvider.h"

namespace quill::bench {

// The same seed gives the same contacts, whole and in the same order.
class ContactGenerator {
 public:
  explicit ContactGenerator(unsigned seed) : m_dice(seed), m_seed(seed) {}

  ContactItem Next();

 private:
  void NameLatin(ContactRecord& record);
  void NameHangul(ContactRecord& record);
  void NameCompany(ContactRecord& record);
  void NameNumber(ContactRecord& record);
  void Employ(ContactRecord& record);
  void AddNumbers(ContactRecord& record);
  void AddBusinessAddress(ContactRecord& record);
  void AddHomeAddress(ContactRecord& record);
  void AddCategories(ContactRecord& record);
  CalendarDate Birthday();
  QString LatinFamily();
  QString Company();

  Dice m_dice;
  unsigned m_seed;
  int m_made = 0;
};

}  // namespace quill::bench
