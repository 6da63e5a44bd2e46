#include "driver/Options.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quill::driver {
namespace {

TEST(Options, HelpIsAskedForBehindOtherOptionsToo) {
  EXPECT_TRUE(ParseOptions({QStringLiteral("--help")}).AsksHelp);
  const ParsedOptions parsed = ParseOptions({QStringLiteral("--scale"), QStringLiteral("2"),
                                             QStringLiteral("--help"), QStringLiteral("fly")});
  EXPECT_TRUE(parsed.AsksHelp);
  EXPECT_EQ(parsed.Problem, QString());
}

TEST(Options, AValueIsNoQuestionForHelp) {
  EXPECT_FALSE(ParseOptions({QStringLiteral("--home"), QStringLiteral("--help")}).AsksHelp);
}

TEST(Options, AWrongOneIsNamedWithItsValue) {
  EXPECT_EQ(ParseOptions({QStringLiteral("--fault"), QStringLiteral("fly:1")}).Problem,
            QStringLiteral("--fault fly:1"));
  EXPECT_EQ(ParseOptions({QStringLiteral("--fly"), QStringLiteral("1")}).Problem,
            QStringLiteral("--fly 1"));
}

TEST(Options, EveryFaultOfTheHelpIsKnown) {
  const QString help = OptionsHelp();
  const QStringList names = help.section(QStringLiteral("Faults:"), 1).simplified().split(u' ');
  EXPECT_EQ(names.size(), 16);
  for (const QString& name : names)
    EXPECT_EQ(ParseOptions({QStringLiteral("--fault"), name}).Problem, QString())
        << name.toStdString();
}

TEST(Options, TheDocumentShowsTheHelp) {
  QFile document(QStringLiteral(QUILL_DOCS "/inside/driver.md"));
  ASSERT_TRUE(document.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(document.readAll()).contains(OptionsHelp()))
      << OptionsHelp().toStdString();
}

}  // namespace
}  // namespace quill::driver
