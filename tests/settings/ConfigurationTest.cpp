#include "settings/Configuration.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(Configuration, ShowsTheSettings) {
  EXPECT_EQ(EntriesOf({.Abc = 1, .AreaCode = 0, .AreaCodeValue = u"02"_qs}),
            (ConfigEntries{.ShowIndex = true, .AutoAreaCode = false, .AreaCode = u"02"_qs}));
  EXPECT_EQ(EntriesOf({.Abc = 0, .AreaCode = 1}),
            (ConfigEntries{.ShowIndex = false, .AutoAreaCode = true}));
}

TEST(Configuration, ANumberThatIsNeither0Nor1IsOn) {
  EXPECT_EQ(EntriesOf({.Abc = 2, .AreaCode = 3}),
            (ConfigEntries{.ShowIndex = true, .AutoAreaCode = true}));
}

TEST(Configuration, OKTakesTheEntriesAndNothingElse) {
  Settings settings{
      .Abc = 1, .Name = 7, .AreaCode = 0, .AreaCodeValue = u"02"_qs, .AreaCodePrefix = u"02-"_qs};
  TakeEntries({.ShowIndex = false, .AutoAreaCode = true, .AreaCode = u"1 2"_qs}, settings);
  EXPECT_EQ(settings, (Settings{.Abc = 0,
                                .Name = 7,
                                .AreaCode = 1,
                                .AreaCodeValue = u"1 2"_qs,
                                .AreaCodePrefix = u"02-"_qs}));
  TakeEntries({.ShowIndex = true, .AutoAreaCode = false}, settings);
  EXPECT_EQ(settings, (Settings{.Abc = 1, .Name = 7, .AreaCodePrefix = u"02-"_qs}));
}

TEST(Configuration, AnAreaCodeIsCutAt520Units) {
  Settings settings;
  TakeEntries({.AreaCode = QString(520, u'7')}, settings);
  EXPECT_EQ(settings.AreaCodeValue, QString(520, u'7'));
  TakeEntries({.AreaCode = QString(521, u'8')}, settings);
  EXPECT_EQ(settings.AreaCodeValue, QString(520, u'8'));
}

TEST(Configuration, OffersTheMobileAndTheRegionalCodesInTheirOrder) {
  QStringList codes;
  for (const QStringView code : kAreaCodes) codes.append(code.toString());
  EXPECT_EQ(codes.join(u' ').toStdString(),
            "011 016 017 018 019 02 051 053 032 062 042 052 031 033 043 041 054 055 063 061 064");
}

struct CodeCase {
  const char16_t* Code;
  int Index;
};

class OfferedAreaCode : public testing::TestWithParam<CodeCase> {};

TEST_P(OfferedAreaCode, IsFoundWhereItIsEqual) {
  EXPECT_EQ(AreaCodeIndex(GetParam().Code), GetParam().Index);
}

INSTANTIATE_TEST_SUITE_P(Codes, OfferedAreaCode,
                         testing::Values(CodeCase{u"011", 0}, CodeCase{u"02", 5},
                                         CodeCase{u"064", 20}, CodeCase{u"05", -1},
                                         CodeCase{u"", -1}, CodeCase{u"0111", -1}));

}  // namespace
}  // namespace quill
