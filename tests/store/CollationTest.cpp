#include "store/Collation.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>
#include <random>

namespace quill {
namespace {

int UnitOrder(const QString& a, const QString& b) {
  const auto order = std::lexicographical_compare_three_way(a.utf16(), a.utf16() + a.size(),
                                                            b.utf16(), b.utf16() + b.size());
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

int KeyOrder(const QByteArray& a, const QByteArray& b) {
  const int order =
      memcmp(a.constData(), b.constData(), static_cast<std::size_t>(std::min(a.size(), b.size())));
  if (order != 0) return order < 0 ? -1 : 1;
  return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

TEST(Collation, FoldsEachUnitByItsSimpleMapping) {
  EXPECT_EQ(FoldCase(u"Kim lee"), QStringLiteral("KIM LEE"));
  EXPECT_EQ(FoldCase(u"äöüéñ"), QStringLiteral("ÄÖÜÉÑ"));
  EXPECT_EQ(FoldCase(u"жёλ"), QStringLiteral("ЖЁΛ"));
  EXPECT_EQ(FoldCase(u"straße"), QStringLiteral("STRAßE"));
  EXPECT_EQ(FoldCase(u"1. (a) 김철수 ☎"), QStringLiteral("1. (A) 김철수 ☎"));
}

TEST(Collation, LeavesSurrogatePairsAsTheyAre) {
  // A small Deseret letter has a capital, but not unit by unit.
  EXPECT_EQ(FoldCase(u"\U00010428"), QStringLiteral("\U00010428"));
}

TEST(Collation, KeysOfTheSameNameInAnyCaseAreEqual) {
  EXPECT_EQ(FoldKey(u"kim, MIN-su"), FoldKey(u"KIM, Min-Su"));
  EXPECT_NE(UnitKey(u"kim"), UnitKey(u"Kim"));
  EXPECT_EQ(FoldKey(u"KIM"), UnitKey(u"KIM"));
}

TEST(Collation, SortsTheScriptsByTheirUnits) {
  const QStringList sorted{QString(),
                           QStringLiteral(" Blank"),
                           QStringLiteral("(Sign)"),
                           QStringLiteral("1st Bank"),
                           QStringLiteral("adams"),
                           QStringLiteral("Adams Co"),
                           QStringLiteral("B"),
                           QStringLiteral("zed"),
                           QStringLiteral("[bracket]"),
                           QStringLiteral("Äpfel"),
                           QStringLiteral("Ωmega"),
                           QStringLiteral("Иван"),
                           QStringLiteral("あい"),
                           QStringLiteral("漢"),
                           QStringLiteral("가나"),
                           QStringLiteral("각"),
                           QStringLiteral("김"),
                           QStringLiteral("홍"),
                           QStringLiteral("\U0001F600"),
                           QStringLiteral("\uFF21")};
  for (qsizetype i = 1; i < sorted.size(); ++i) {
    EXPECT_EQ(KeyOrder(FoldKey(sorted[i - 1]), FoldKey(sorted[i])), -1)
        << sorted[i - 1].toStdString() << " before " << sorted[i].toStdString();
  }
}

TEST(Collation, ABeginningComesFirst) {
  EXPECT_EQ(KeyOrder(FoldKey(u"Kim"), FoldKey(u"Kima")), -1);
  const QChar withNul[]{u'K', u'\0'};
  EXPECT_EQ(KeyOrder(FoldKey(u"K"), FoldKey(QStringView(withNul, 2))), -1);
}

TEST(Collation, NoKeyHoldsTheByteThatEndsKeys) {
  for (int unit = 0; unit <= 0xFFFF; ++unit) {
    const QChar text(static_cast<char16_t>(unit));
    ASSERT_FALSE(UnitKey(QStringView(&text, 1)).contains('\0')) << unit;
  }
}

TEST(Collation, TheByteOneComesAfterAKeysEndAndBeforeEveryLongerText) {
  const QByteArray kim = UnitKey(u"Kim");
  for (int unit = 0; unit <= 0xFFFF; ++unit) {
    const QChar text[]{u'K', u'i', u'm', QChar(static_cast<char16_t>(unit))};
    ASSERT_EQ(KeyOrder(kim + '\1', UnitKey(QStringView(text, 4))), -1) << unit;
  }
  EXPECT_EQ(KeyOrder(kim + '\0', kim + '\1'), -1);
}

TEST(Collation, EveryUnitsKeyIsInItsPlace) {
  QByteArray before = UnitKey(QStringView(u"\0", 1));
  for (int unit = 1; unit <= 0xFFFF; ++unit) {
    const QChar text(static_cast<char16_t>(unit));
    const QByteArray key = UnitKey(QStringView(&text, 1));
    ASSERT_EQ(KeyOrder(before, key), -1) << unit;
    before = key;
  }
}

TEST(Collation, KeysOrderAsTheFoldedTextsDo) {
  std::mt19937 random(20040915);
  const auto randomText = [&random] {
    static constexpr char16_t kUnits[] = u"\0aAbBzZ[ß\u07FF\u0800가\xD83D\xDE00\uE000\uFFFF";
    QString text;
    for (auto left = random() % 5; left > 0; --left) text += kUnits[random() % 17];
    return text;
  };
  for (int i = 0; i < 20000; ++i) {
    const QString a = randomText();
    const QString b = randomText();
    ASSERT_EQ(KeyOrder(UnitKey(a), UnitKey(b)), UnitOrder(a, b));
    ASSERT_EQ(KeyOrder(FoldKey(a), FoldKey(b)), UnitOrder(FoldCase(a), FoldCase(b)));
  }
}

}  // namespace
}  // namespace quill
