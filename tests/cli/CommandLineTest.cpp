#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/Shortcuts.h"

namespace quill {
namespace {

CommandLine Parse(const char* words) {
  return ParseCommandLine(QString::fromUtf8(words).split(u' ', Qt::SkipEmptyParts));
}

struct WrongCase {
  const char* Words;
  const char* Problem;
};

class WrongCommandLine : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongCommandLine, IsToldWhy) {
  const CommandLine line = Parse(GetParam().Words);
  EXPECT_EQ(line.Kind, CommandKind::Wrong);
  EXPECT_EQ(line.Problem.toStdString(), GetParam().Problem);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WrongCommandLine,
    testing::Values(WrongCase{"--nonsense", "unknown option --nonsense"},
                    WrongCase{"-x", "unknown option -x"},
                    WrongCase{"list --nonsense=3", "unknown option --nonsense"},
                    WrongCase{"-platform offscreen", "unknown option -platform"},
                    WrongCase{"--home", "--home needs a value"},
                    WrongCase{"--home --demo", "--home needs a value"},
                    WrongCase{"--show -- Ann", "--show needs a value"},
                    WrongCase{"import --charset --home x1", "--charset needs a value"},
                    WrongCase{"--home=", "--home does not understand \"\""},
                    WrongCase{"--demo=1", "--demo takes no value"},
                    WrongCase{"list --json=1", "--json takes no value"},
                    WrongCase{"--scale big", "--scale does not understand \"big\""},
                    WrongCase{"--scale 1.1", "--scale does not understand \"1.1\""},
                    WrongCase{"--scale 9", "--scale does not understand \"9\""},
                    WrongCase{"--show=", "--show does not understand \"\""},
                    WrongCase{"--new=", "--new does not understand \"\""},
                    WrongCase{"import", "import needs FILE|DIR..."},
                    WrongCase{"list people", "list does not take \"people\""},
                    WrongCase{"import --json a.vcf", "import does not know --json"},
                    WrongCase{"--json import a.vcf", "import does not know --json"},
                    WrongCase{"--json", "--json is for commands"},
                    WrongCase{"--json a.vcf", "--json is for commands"},
                    WrongCase{"--show Ann list",
                              "--show and --new are for the window, not for list"},
                    WrongCase{"--show Ann a.vcf", "--show and --new do not go with files"}));

TEST(CommandLine, WithoutWordsIsTheWindow) {
  const CommandLine line = Parse("");
  EXPECT_EQ(line.Kind, CommandKind::Window);
  EXPECT_FALSE(line.Called);
  EXPECT_FALSE(line.Home);
  EXPECT_FALSE(line.AskedScale);
  EXPECT_FALSE(line.FirstRequest);
  EXPECT_FALSE(line.Demo);
  EXPECT_TRUE(line.Arguments.isEmpty());
}

TEST(CommandLine, TakesTheOptionsOfTheWindow) {
  const CommandLine line = Parse("--home /tmp/h --scale 1.25 --demo");
  EXPECT_EQ(line.Kind, CommandKind::Window);
  EXPECT_EQ(line.Home, u"/tmp/h"_qs);
  EXPECT_EQ(line.AskedScale, Scale{5});
  EXPECT_TRUE(line.Demo);
}

TEST(CommandLine, TakesValuesBehindAnEqualsSign) {
  const CommandLine line = Parse("--home=/tmp/a=b --scale=3");
  EXPECT_EQ(line.Home, u"/tmp/a=b"_qs);
  EXPECT_EQ(line.AskedScale, Scale{12});
}

TEST(CommandLine, TakesAValueThatLooksLikeAnOption) {
  EXPECT_EQ(Parse("--new=--demo").FirstRequest, (Request{RequestKind::New, u"--demo"_qs, {}}));
}

TEST(CommandLine, LooksTheFirstWordUp) {
  const CommandLine line = Parse("--home /tmp/h import a.vcf list");
  EXPECT_EQ(line.Kind, CommandKind::RunVerb);
  ASSERT_TRUE(line.Called);
  EXPECT_EQ(line.Called->Name, u"import");
  EXPECT_EQ(line.Arguments, QStringList({u"a.vcf"_qs, u"list"_qs}));
}

TEST(CommandLine, TakesOptionsBehindTheVerb) {
  const CommandLine line = Parse("list --json --home /tmp/h");
  EXPECT_EQ(line.Kind, CommandKind::RunVerb);
  EXPECT_EQ(line.Called, FindVerb(u"list"_qs));
  EXPECT_EQ(line.VerbOptions, (QMap<QString, QString>{{u"--json"_qs, QString()}}));
  EXPECT_EQ(line.Home, u"/tmp/h"_qs);
}

TEST(CommandLine, TakesAVerbsOptionsBeforeIt) {
  const CommandLine line = Parse("--json list");
  EXPECT_EQ(line.Called, FindVerb(u"list"_qs));
  EXPECT_TRUE(line.VerbOptions.contains(u"--json"_qs));
}

TEST(CommandLine, AFirstWordThatIsNoVerbIsAFile) {
  for (const char* words : {"a.vcf import", "./import import", "-- a.vcf import"}) {
    const CommandLine line = Parse(words);
    EXPECT_EQ(line.Kind, CommandKind::Window) << words;
    EXPECT_EQ(line.Arguments.size(), 2) << words;
    EXPECT_EQ(line.Arguments.last(), u"import"_qs) << words;
  }
}

TEST(CommandLine, BehindTwoDashesEveryWordIsAFile) {
  const CommandLine line = Parse("import -- --demo list -");
  EXPECT_EQ(line.Arguments, QStringList({u"--demo"_qs, u"list"_qs, u"-"_qs}));
  EXPECT_EQ(Parse("-- import").Kind, CommandKind::Window);
}

TEST(CommandLine, AsksTheWindowForAContact) {
  EXPECT_EQ(Parse("--show Ann").FirstRequest, (Request{RequestKind::Show, u"Ann"_qs, {}}));
  EXPECT_EQ(Parse("--new=Ann").FirstRequest, (Request{RequestKind::New, u"Ann"_qs, {}}));
}

TEST(CommandLine, HelpAndVersionGoBeforeAllElse) {
  EXPECT_EQ(Parse("--version import").Kind, CommandKind::Version);
  const CommandLine help = Parse("import --help");
  EXPECT_EQ(help.Kind, CommandKind::Help);
  EXPECT_EQ(help.Called, FindVerb(u"import"_qs));
}

TEST(CommandLine, HelpHasSeveralNames) {
  for (const char* words : {"-h", "help", "--help", "help a.vcf", "--home /tmp/h help"}) {
    const CommandLine line = Parse(words);
    EXPECT_EQ(line.Kind, CommandKind::Help) << words;
    EXPECT_FALSE(line.Called) << words;
  }
  for (const char* words : {"list -h", "help list", "-h list"}) {
    const CommandLine line = Parse(words);
    EXPECT_EQ(line.Kind, CommandKind::Help) << words;
    EXPECT_EQ(line.Called, FindVerb(u"list"_qs)) << words;
  }
  EXPECT_EQ(Parse("./help").Arguments, QStringList{u"./help"_qs});
  EXPECT_EQ(Parse("show help").Arguments, QStringList{u"help"_qs});
}

TEST(HelpText, NamesEveryVerbAndOption) {
  const QString text = HelpText(nullptr);
  for (const Verb& verb : Verbs()) EXPECT_TRUE(text.contains(verb.Help.toString()));
  for (const char* option :
       {"--home DIR", "--demo", "--scale N", "--show NAME", "--new TEXT", "--version", "--help"})
    EXPECT_TRUE(text.contains(QString::fromLatin1(option))) << option;
  EXPECT_TRUE(text.endsWith(u'\n'));
  EXPECT_TRUE(
      HelpText(FindVerb(u"import"_qs)).startsWith(u"quill import FILE|DIR... [OPTION...]\n"_qs));
}

TEST(HelpText, OfAVerbNamesItsOptions) {
  EXPECT_EQ(HelpText(FindVerb(u"list"_qs)).toStdString(),
            "quill list [OPTION...]\n"
            "print the contacts' names, one on a line\n"
            "\n"
            "Options:\n"
            "  --json  print JSON\n");
}

TEST(Verbs, CallOptionsAlikeThatLookAlike) {
  QMap<QString, QString> values;
  for (const Verb& verb : Verbs()) {
    for (const Option& option : verb.Options) {
      const QString value = option.Value.toString();
      EXPECT_EQ(values.value(option.Name.toString(), value), value) << value.toStdString();
      values.insert(option.Name.toString(), value);
    }
  }
}

TEST(Verbs, AreFoundByTheirWholeName) {
  EXPECT_TRUE(FindVerb(u"list"_qs));
  EXPECT_FALSE(FindVerb(u"lis"_qs));
  EXPECT_FALSE(FindVerb(u"List"_qs));
  EXPECT_FALSE(FindVerb(QString()));
}

TEST(HelpText, NamesTheKeysOfTheWindow) {
  const QStringList lines = HelpText(nullptr).split(u'\n');
  for (const Shortcut& shortcut : Shortcuts()) {
    EXPECT_TRUE(std::ranges::any_of(lines, [&shortcut](const QString& line) {
      return line.startsWith(u"  "_qs + shortcut.Keys.toString() + u' ') &&
             line.endsWith(u' ' + shortcut.Does.toString());
    })) << shortcut.Keys.toString().toStdString();
    EXPECT_TRUE(lines.contains(NameOf(shortcut.Place).toString() + u':'));
  }
}

}  // namespace
}  // namespace quill
