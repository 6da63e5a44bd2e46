// Composes Hangul syllables from the keys of the two-set keyboard. Keys and single letters are code
// units of the compatibility block, U+3131 to U+3163.
#pragma once

#include <QString>

namespace quill {

// What a key led to: text that is finished, and what is still being composed, one letter or
// syllable at most.
struct HangulStep {
  QString Committed = {};
  QString Preedit = {};

  bool operator==(const HangulStep&) const = default;
};

class HangulComposer {
 public:
  // A consonant that can begin a syllable, or a vowel; anything else ends the syllable and is
  // committed behind it.
  HangulStep Feed(char16_t key);
  // Takes the last key back; without a syllable nothing happens.
  HangulStep Backspace();
  // Ends the syllable and returns it.
  QString Flush();

  bool IsComposing() const { return !Preedit().isEmpty(); }
  QString Preedit() const;

 private:
  // The keys that make it, 0 for those that are not there.
  struct Syllable {
    char16_t Lead = 0;
    char16_t Vowel = 0;
    char16_t SecondVowel = 0;
    char16_t Final = 0;
    char16_t SecondFinal = 0;
  };

  bool TakeConsonant(char16_t key);
  bool TakeVowel(char16_t key);
  char16_t TakeLastFinal();
  HangulStep Begin(const Syllable& next);

  Syllable m_syllable;
};

}  // namespace quill
