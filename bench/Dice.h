// Choices by chance, the same ones from the same seed.
#pragma once

#include <QString>

#include <random>
#include <span>

namespace quill::bench {

// None of the library's distributions: these give other numbers elsewhere. What is thrown one after
// the other stands in statements of its own: within one, the order is the compiler's.
class Dice {
 public:
  explicit Dice(unsigned seed) : m_random(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
  bool OneIn(unsigned count) { return Below(count) == 0; }
  QString Pick(std::span<const QStringView> words) {
    return words[Below(static_cast<unsigned>(words.size()))].toString();
  }
  QString Digits(int count) {
    QString digits;
    for (int i = 0; i < count; ++i) digits += QChar(u'0' + Below(10));
    return digits;
  }

 private:
  std::mt19937 m_random;
};

}  // namespace quill::bench
