// Contacts of random but repeatable content, with texts that are hard on a writer of cards.
#pragma once

#include <random>

#include "store/StoreProvider.h"

namespace quill::test {

class RandomContacts {
 public:
  explicit RandomContacts(unsigned seed) : m_random(seed) {}

  // One whose card can hold all of it: what WriteCard says no card can hold is not in it.
  ContactItem Next();

 private:
  int Below(int limit);
  QString Text();
  QString TextOrNothing();
  QString List(QStringView separator);
  CalendarDate DateOrNone();
  QString CarriedLines();

  std::mt19937 m_random;
};

}  // namespace quill::test
