#include "platform/DevicePath.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quill {
namespace {

TEST(DevicePath, PartsAreCountedFromTheRoot) {
  EXPECT_EQ(DevicePathParts(u"\\My Documents\\Fennick\\A.pwi"_qs),
            QStringList({u"My Documents"_qs, u"Fennick"_qs, u"A.pwi"_qs}));
  EXPECT_EQ(DevicePathParts(u"A.pwi"_qs), QStringList(u"A.pwi"_qs));
  EXPECT_EQ(DevicePathParts(u"\\"_qs), QStringList());
}

TEST(DevicePath, DoubledAndTrailingSeparatorsCountAsNone) {
  EXPECT_EQ(DevicePathParts(u"\\My Documents\\\\A.pwi"_qs),
            QStringList({u"My Documents"_qs, u"A.pwi"_qs}));
  EXPECT_EQ(DevicePathParts(u"\\My Documents\\"_qs), QStringList(u"My Documents"_qs));
}

class UnreachablePart : public testing::TestWithParam<QString> {};

TEST_P(UnreachablePart, MakesTheWholePathUnreachable) {
  EXPECT_EQ(DevicePathParts(u"\\My Documents\\"_qs + GetParam()), std::nullopt);
  EXPECT_EQ(DevicePathParts(GetParam() + u"\\A.pwi"_qs), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(DevicePath, UnreachablePart,
                         testing::Values(u".."_qs, u"."_qs, u"/etc"_qs, u"a/b"_qs,
                                         QString(QChar::Null), QString(QChar(0xD800))));

TEST(DevicePath, NamesThatBeginLikeTheFolderAboveAreNames) {
  EXPECT_NE(DevicePathParts(u"\\..a\\...\\.b"_qs), std::nullopt);
}

struct NameCase {
  QString Name;
  bool Allowed;
};

void PrintTo(const NameCase& name, std::ostream* out) { *out << name.Name.toStdString(); }

class DeviceName : public testing::TestWithParam<NameCase> {};

TEST_P(DeviceName, IsAllowedOrNot) { EXPECT_EQ(IsDeviceName(GetParam().Name), GetParam().Allowed); }

INSTANTIATE_TEST_SUITE_P(Names, DeviceName,
                         testing::Values(NameCase{u"Kim_20040915_093005.pwi"_qs, true},
                                         NameCase{u"김 [1] & é.pwi"_qs, true},
                                         NameCase{u" "_qs, true}, NameCase{u""_qs, false},
                                         NameCase{u"a\\b"_qs, false}, NameCase{u"a/b"_qs, false},
                                         NameCase{u"a:b"_qs, false}, NameCase{u"a*b"_qs, false},
                                         NameCase{u"a?b"_qs, false}, NameCase{u"a\"b"_qs, false},
                                         NameCase{u"a<b"_qs, false}, NameCase{u"a>b"_qs, false},
                                         NameCase{u"a|b"_qs, false}, NameCase{u"a\tb"_qs, false},
                                         NameCase{u"a\u001Fb"_qs, false}));

struct PatternCase {
  QString Pattern;
  QString Name;
  bool Matches;
};

void PrintTo(const PatternCase& each, std::ostream* out) {
  *out << each.Name.toStdString() << " against " << each.Pattern.toStdString();
}

class Pattern : public testing::TestWithParam<PatternCase> {};

TEST_P(Pattern, MatchesOrNot) {
  EXPECT_EQ(MatchesPattern(GetParam().Name, GetParam().Pattern), GetParam().Matches);
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, Pattern,
    testing::Values(
        PatternCase{u"*.pwi"_qs, u"a.pwi"_qs, true}, PatternCase{u"*.pwi"_qs, u"A.PWI"_qs, true},
        PatternCase{u"*.pwi"_qs, u".pwi"_qs, true}, PatternCase{u"*.pwi"_qs, u"a.pwi.x"_qs, false},
        PatternCase{u"*.pwi"_qs, u"apwi"_qs, false},
        PatternCase{u"*.pwi"_qs, u"a.pwi.pwi"_qs, true},
        PatternCase{u"Kim*.pwi"_qs, u"kimberly.pwi"_qs, true},
        PatternCase{u"Kim*.pwi"_qs, u"aKim.pwi"_qs, false},
        PatternCase{u"Kim*.pwi"_qs, u"Ki.pwi"_qs, false},
        PatternCase{u"김*.pwi"_qs, u"김서연_1.pwi"_qs, true},
        PatternCase{u"É*"_qs, u"émile"_qs, true}, PatternCase{u"a?c"_qs, u"abc"_qs, true},
        PatternCase{u"a?c"_qs, u"ac"_qs, false}, PatternCase{u"a?"_qs, u"a"_qs, false},
        PatternCase{u"[a]*"_qs, u"[A]1"_qs, true}, PatternCase{u"[a]*"_qs, u"a1"_qs, false},
        PatternCase{u"a*b*c"_qs, u"a-b-b-c"_qs, true}, PatternCase{u"a*bc"_qs, u"abbbc"_qs, true},
        PatternCase{u"a*b"_qs, u"a*b"_qs, true}, PatternCase{u"*a*b"_qs, u"ba"_qs, false},
        PatternCase{u"***"_qs, u""_qs, true}, PatternCase{u""_qs, u""_qs, true},
        PatternCase{u""_qs, u"a"_qs, false}, PatternCase{u"a"_qs, u""_qs, false}));

}  // namespace
}  // namespace quill
