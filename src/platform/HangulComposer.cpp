#include "platform/HangulComposer.h"

#include <QStringView>

#include <utility>

namespace quill {

namespace {

constexpr char16_t kFirstVowel = u'ㅏ';
constexpr char16_t kLastVowel = u'ㅣ';
constexpr char16_t kFirstSyllable = u'가';
// In the order in which syllables count.
constexpr QStringView kLeads = u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";
constexpr QStringView kFinals = u"ㄱㄲㄳㄴㄵㄶㄷㄹㄺㄻㄼㄽㄾㄿㅀㅁㅂㅄㅅㅆㅇㅈㅊㅋㅌㅍㅎ";
constexpr int kVowelCount = 21;
constexpr int kFinalCount = 28;  // with none

struct Compound {
  char16_t First;
  char16_t Second;
  char16_t Whole;
};

constexpr Compound kCompounds[] = {
    {u'ㅗ', u'ㅏ', u'ㅘ'}, {u'ㅗ', u'ㅐ', u'ㅙ'}, {u'ㅗ', u'ㅣ', u'ㅚ'}, {u'ㅜ', u'ㅓ', u'ㅝ'},
    {u'ㅜ', u'ㅔ', u'ㅞ'}, {u'ㅜ', u'ㅣ', u'ㅟ'}, {u'ㅡ', u'ㅣ', u'ㅢ'}, {u'ㄱ', u'ㅅ', u'ㄳ'},
    {u'ㄴ', u'ㅈ', u'ㄵ'}, {u'ㄴ', u'ㅎ', u'ㄶ'}, {u'ㄹ', u'ㄱ', u'ㄺ'}, {u'ㄹ', u'ㅁ', u'ㄻ'},
    {u'ㄹ', u'ㅂ', u'ㄼ'}, {u'ㄹ', u'ㅅ', u'ㄽ'}, {u'ㄹ', u'ㅌ', u'ㄾ'}, {u'ㄹ', u'ㅍ', u'ㄿ'},
    {u'ㄹ', u'ㅎ', u'ㅀ'}, {u'ㅂ', u'ㅅ', u'ㅄ'},
};

// 0 when the two make none.
char16_t CompoundOf(char16_t first, char16_t second) {
  for (const Compound& each : kCompounds)
    if (each.First == first && each.Second == second) return each.Whole;
  return 0;
}

// What two keys show, the second perhaps none.
char16_t Joined(char16_t first, char16_t second) {
  return second == 0 ? first : CompoundOf(first, second);
}

bool IsVowel(char16_t key) { return key >= kFirstVowel && key <= kLastVowel; }

bool CanBegin(char16_t consonant) { return kLeads.contains(QChar(consonant)); }

bool CanEnd(char16_t consonant) { return kFinals.contains(QChar(consonant)); }

}  // namespace

QString HangulComposer::Preedit() const {
  const char16_t vowel = Joined(m_syllable.Vowel, m_syllable.SecondVowel);
  if (vowel == 0) return m_syllable.Lead == 0 ? QString() : QString(QChar(m_syllable.Lead));
  if (m_syllable.Lead == 0) return QChar(vowel);
  const char16_t last = Joined(m_syllable.Final, m_syllable.SecondFinal);
  const auto lead = kLeads.indexOf(QChar(m_syllable.Lead));
  const auto final = last == 0 ? 0 : kFinals.indexOf(QChar(last)) + 1;
  const auto place = (lead * kVowelCount + (vowel - kFirstVowel)) * kFinalCount + final;
  return QChar(static_cast<char16_t>(kFirstSyllable + place));
}

HangulStep HangulComposer::Feed(char16_t key) {
  if (IsVowel(key)) {
    if (TakeVowel(key)) return {{}, Preedit()};
    const char16_t moved = TakeLastFinal();
    return Begin({.Lead = moved, .Vowel = key});
  }
  if (!CanBegin(key)) return {Flush() + QChar(key), {}};
  if (TakeConsonant(key)) return {{}, Preedit()};
  return Begin({.Lead = key});
}

// False when the syllable has no place for it.
bool HangulComposer::TakeConsonant(char16_t key) {
  if (m_syllable.Lead == 0 || m_syllable.Vowel == 0 || m_syllable.SecondFinal != 0) return false;
  const bool second = m_syllable.Final != 0;
  if (second ? CompoundOf(m_syllable.Final, key) == 0 : !CanEnd(key)) return false;
  (second ? m_syllable.SecondFinal : m_syllable.Final) = key;
  return true;
}

bool HangulComposer::TakeVowel(char16_t key) {
  if (m_syllable.Final != 0 || m_syllable.SecondVowel != 0) return false;
  const bool second = m_syllable.Vowel != 0;
  if (second && CompoundOf(m_syllable.Vowel, key) == 0) return false;
  (second ? m_syllable.SecondVowel : m_syllable.Vowel) = key;
  return true;
}

// The consonant that goes on to the next syllable, 0 when there is none.
char16_t HangulComposer::TakeLastFinal() {
  char16_t& last = m_syllable.SecondFinal != 0 ? m_syllable.SecondFinal : m_syllable.Final;
  return std::exchange(last, u'\0');
}

HangulStep HangulComposer::Begin(const Syllable& next) {
  const QString committed = Flush();
  m_syllable = next;
  return {committed, Preedit()};
}

HangulStep HangulComposer::Backspace() {
  for (char16_t* const key : {&m_syllable.SecondFinal, &m_syllable.Final, &m_syllable.SecondVowel,
                              &m_syllable.Vowel, &m_syllable.Lead}) {
    if (std::exchange(*key, u'\0') != 0) break;
  }
  return {{}, Preedit()};
}

QString HangulComposer::Flush() {
  const QString text = Preedit();
  m_syllable = {};
  return text;
}

}  // namespace quill
