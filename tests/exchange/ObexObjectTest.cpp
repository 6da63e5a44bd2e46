#include "exchange/ObexObject.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

const QByteArray kCard = "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Abel;Ann\r\nTEL:1\r\nEND:VCARD\r\n";

struct ObjectCase {
  const char* Title;
  QStringView Name;
  QByteArray Bytes;
  int Cards;  // 0: it is no card
};

QByteArray Wide(const char* mark, const QByteArray& text) {
  QByteArray wide(mark);
  for (const char byte : text) wide.append(byte).append('\0');
  return wide;
}

const std::vector<ObjectCase> kObjects{
    {"ACardWithoutAName", u"", kCard, 1},
    {"ACardByAnotherName", u"picture.jpg", kCard, 1},
    {"ACardInSmallLetters", u"", "begin:vcard\nfn:a\nend:vcard\n", 1},
    {"ACardBehindAMark", u"", "\xEF\xBB\xBF" + kCard, 1},
    {"ACardBehindEmptyLines", u"", "\r\n \r\n" + kCard, 1},
    {"ACardOfWideCharacters", u"", Wide("\xFF\xFE", kCard), 1},
    {"ACardThatDoesNotEnd", u"", "BEGIN:VCARD\r\nFN:a", 1},
    {"SeveralCards", u"", kCard + kCard + kCard, 3},
    {"ACardThatIsOneByItsName", u"Ann.vcf", "X-BEFORE:1\r\n" + kCard, 1},
    {"ACardWithALongEnding", u"ANN.VCARD", "X-BEFORE:1\r\n" + kCard, 1},
    {"NoCardByItsFirstLine", u"Ann.txt", "X-BEFORE:1\r\n" + kCard, 0},
    {"NoCardWhateverTheName", u"Ann.vcf", "GIF89a", 0},
    {"NoCardThatOnlyBeginsSo", u"", "BEGIN:VCARDS\r\nFN:a\r\n", 0},
    {"AnAppointment", u"", "BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n", 0},
    {"Nothing", u"Ann.vcf", "", 0},
};

class PushedObject : public testing::TestWithParam<ObjectCase> {};

TEST_P(PushedObject, IsACardOrIsNot) {
  const auto object = CardObject(GetParam().Name.toString(), GetParam().Bytes, 1000);
  ASSERT_EQ(object ? object->Cards : 0, GetParam().Cards);
  if (!object) return;
  EXPECT_EQ(object->Bytes, GetParam().Bytes);
  EXPECT_EQ(object->Label, GetParam().Name.toString());
}

INSTANTIATE_TEST_SUITE_P(ObexObject, PushedObject, testing::ValuesIn(kObjects),
                         [](const auto& object) { return object.param.Title; });

TEST(ObexObject, SaysWhoseCardComesFirst) {
  const auto object = CardObject({}, kCard + "BEGIN:VCARD\nFN:Bob\nEND:VCARD\n", 1000);
  ASSERT_TRUE(object);
  EXPECT_EQ(object->Person, u"Abel Ann"_qs);
  EXPECT_EQ(CardObject({}, "BEGIN:VCARD\nFN:a\u202Eb\nEND:VCARD\n", 1000)->Person, u"ab"_qs);
}

TEST(ObexObject, SaysWhoseCardItIsWhenItCannotBeRead) {
  QByteArray damaged = "BEGIN:VCARD\r\nFN:Ann\r\n";
  for (int i = 0; i < 5'001; ++i) damaged += "TEL:1\r\n";
  const auto object = CardObject({}, damaged, 1000);
  ASSERT_TRUE(object);
  EXPECT_EQ(object->Person, u"Ann"_qs);
}

TEST(ObexObject, StopsCountingOneAboveTheLimit) {
  EXPECT_EQ(CardObject({}, kCard.repeated(3), 3)->Cards, 3);
  EXPECT_EQ(CardObject({}, kCard.repeated(5), 3)->Cards, 4);
}

struct LabelCase {
  QStringView Name;
  QStringView Label;
};

class Label : public testing::TestWithParam<LabelCase> {};

TEST_P(Label, IsOneHarmlessLine) {
  EXPECT_EQ(ObexLabel(GetParam().Name.toString()), GetParam().Label.toString());
}

INSTANTIATE_TEST_SUITE_P(ObexObject, Label,
                         testing::Values(LabelCase{u"Ann.vcf", u"Ann.vcf"}, LabelCase{u"", u""},
                                         LabelCase{u"../../etc/passwd", u"../../etc/passwd"},
                                         LabelCase{u"a\r\nb\tc\u0001d \u0001", u"a b cd"},
                                         LabelCase{u" a  b ", u"a b"},
                                         LabelCase{u"a\u202Efcv\u2028.exe\u2029", u"afcv .exe"},
                                         LabelCase{u"김서연", u"김서연"},
                                         LabelCase{u"a\uFFFE", u"a"}, LabelCase{u"a\xD800", u"a?"},
                                         LabelCase{u"\U0001F600", u"\U0001F600"}));

TEST(ObexObject, CutsLongLabelsBetweenCharacters) {
  EXPECT_EQ(ObexLabel(QString(60, u'a')), QString(60, u'a'));
  EXPECT_EQ(ObexLabel(QString(61, u'a')), QString(60, u'a'));
  EXPECT_EQ(ObexLabel(QString(59, u'a') + u"\U0001F600"_qs), QString(59, u'a'));
}

}  // namespace
}  // namespace quill
