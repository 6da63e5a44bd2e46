// Contacts as a grown address book holds them, made up: half have Latin names, a third Hangul ones,
// the rest are companies and bare numbers. Telephone numbers and mail addresses reach nobody.
#pragma once

#include <QString>

#include <random>
#include <span>

#include "store/StoreProvider.h"

namespace quill::bench {

// The categories that the contacts are in: a third of them in none, a tenth in two.
std::span<const QStringView> GeneratedCategories();

// The same seed gives the same contacts, whole and in the same order.
class ContactGenerator {
 public:
  explicit ContactGenerator(unsigned seed) : m_random(seed), m_seed(seed) {}

  ContactItem Next();
  // True once in so many times; for what else is made along with the contacts.
  bool OneIn(unsigned count);
  unsigned Below(unsigned limit);

 private:
  QString Pick(std::span<const QStringView> words);
  QString Digits(int count);
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

  std::mt19937 m_random;
  unsigned m_seed;
  int m_made = 0;
};

}  // namespace quill::bench
