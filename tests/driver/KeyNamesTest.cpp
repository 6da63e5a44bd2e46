#include "driver/KeyNames.h"

#include <gtest/gtest.h>

using namespace quill::driver;

struct KeyCase {
  const char* Name;
  int Key;
  Qt::KeyboardModifiers Modifiers;
  const char* Text;
};

class KeyName : public testing::TestWithParam<KeyCase> {};

TEST_P(KeyName, GivesKeyModifiersAndText) {
  const std::optional<NamedKey> key = ParseKey(QString::fromLatin1(GetParam().Name));
  ASSERT_TRUE(key.has_value()) << GetParam().Name;
  EXPECT_EQ(key->Key, GetParam().Key);
  EXPECT_EQ(key->Modifiers, GetParam().Modifiers);
  EXPECT_EQ(key->Text, QString::fromLatin1(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(Names, KeyName,
                         testing::Values(KeyCase{"Return", Qt::Key_Return, Qt::NoModifier, "\r"},
                                         KeyCase{"Escape", Qt::Key_Escape, Qt::NoModifier, ""},
                                         KeyCase{"PageDown", Qt::Key_PageDown, Qt::NoModifier, ""},
                                         KeyCase{"PgDown", Qt::Key_PageDown, Qt::NoModifier, ""},
                                         KeyCase{"Alt", Qt::Key_Alt, Qt::NoModifier, ""},
                                         KeyCase{"a", Qt::Key_A, Qt::NoModifier, "a"},
                                         KeyCase{"Shift+a", Qt::Key_A, Qt::ShiftModifier, "A"},
                                         KeyCase{"Ctrl+Shift+a", Qt::Key_A,
                                                 Qt::ControlModifier | Qt::ShiftModifier, ""},
                                         KeyCase{"Shift+F10", Qt::Key_F10, Qt::ShiftModifier, ""},
                                         KeyCase{"Ctrl+Z", Qt::Key_Z, Qt::ControlModifier, ""},
                                         KeyCase{"Ctrl+Shift+Home", Qt::Key_Home,
                                                 Qt::ControlModifier | Qt::ShiftModifier, ""},
                                         KeyCase{"Ctrl++", Qt::Key_Plus, Qt::ControlModifier, ""},
                                         KeyCase{"+", Qt::Key_Plus, Qt::NoModifier, "+"}));

TEST(KeyNames, RefuseWhatIsNoKey) {
  for (const char* const name : {"", "Wing", "Ctrl+Wing", "A, B"})
    EXPECT_FALSE(ParseKey(QString::fromLatin1(name)).has_value()) << name;
}

TEST(KeyNames, CapitalLettersAreTypedWithShift) {
  EXPECT_EQ(KeyOf(u'A').Modifiers, Qt::ShiftModifier);
  EXPECT_EQ(KeyOf(u'a').Key, Qt::Key_A);
}

TEST(KeyNames, TabsAndLineEndsAreTypedWithTheirKeys) {
  EXPECT_EQ(KeyOf(u'\t').Key, Qt::Key_Tab);
  EXPECT_EQ(KeyOf(u'\t').Text, QStringLiteral("\t"));
  EXPECT_EQ(KeyOf(u'\n').Key, Qt::Key_Return);
  EXPECT_EQ(KeyOf(u'\r').Key, Qt::Key_Return);
}
