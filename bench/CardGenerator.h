// Cards like those of a real export, made up: names of several languages, organisations, all three
// versions, folded lines, quoted-printable, a picture now and then.
#pragma once

#include <QByteArray>

#include <random>

namespace quill::bench {

// The same seed gives the same cards, each ended by CRLF.
class CardGenerator {
 public:
  explicit CardGenerator(unsigned seed) : m_random(seed) {}

  QByteArray Next();

 private:
  struct Person;

  std::size_t Below(std::size_t limit);
  bool OneIn(std::size_t count);
  template <typename Words>
  QByteArray Pick(const Words& words);
  QByteArray Digits(int count);
  Person MakePerson();
  QByteArray Version21(const Person& person);
  QByteArray Version30(const Person& person);
  QByteArray Version40(const Person& person);
  QByteArray Picture();

  std::mt19937 m_random;
  int m_made = 0;
};

}  // namespace quill::bench
