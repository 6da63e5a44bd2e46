#include "cli/RunCommand.h"

#include <QFileInfo>

#include <gmock/gmock.h>

#include "cli/ConsoleFixture.h"
#include "support/OrdinaryUser.h"

namespace quill {
namespace {

class RunCommandOn : public test::ConsoleFixture {};

TEST_F(RunCommandOn, AWrongLineComplainsAndFails) {
  EXPECT_EQ(Run({u"--nonsense"_qs}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: unknown option --nonsense\nquill --help says what there is\n");
  EXPECT_EQ(TakeOut(), "");
  EXPECT_FALSE(QFileInfo::exists(Home())) << "nothing is made for it";
}

TEST_F(RunCommandOn, HelpAndVersionPrintAndMakeNothing) {
  EXPECT_EQ(Run({u"--help"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), HelpText(nullptr).toStdString());
  EXPECT_EQ(Run({u"--version"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Quill (Quillbook) " QUILL_VERSION "\n");
  EXPECT_FALSE(QFileInfo::exists(Home()));
}

TEST_F(RunCommandOn, ADemoKeepsToAHomeOfItsOwn) {
  QProcessEnvironment environment;
  environment.insert(u"XDG_DATA_HOME"_qs, m_folder.filePath(u"data"_qs));
  EXPECT_EQ(RunCommand(ParseCommandLine({u"--demo"_qs, u"list"_qs}), environment, m_console),
            kExitDone);
  EXPECT_THAT(TakeOut(), testing::HasSubstr("Abernathy, Alice\n"));
  EXPECT_TRUE(QFileInfo::exists(m_folder.filePath(u"data/quill/demo/store.db"_qs)));
  EXPECT_FALSE(QFileInfo::exists(m_folder.filePath(u"data/quill/store.db"_qs)));
}

class RunCommandOnAFullDevice : public test::ConsoleFixture,
                                public testing::WithParamInterface<const char*> {};

TEST_P(RunCommandOnAFullDevice, FailsAndSaysSo) {
  ASSERT_EQ(Run({u"import"_qs, MakeFile(u"card.vcf"_qs, "BEGIN:VCARD\nN:Abel;Ann\nEND:VCARD\n")}),
            kExitDone);
  const QStringList words = QString::fromLatin1(GetParam()).split(u' ');
  QFile device(u"/dev/full"_qs);
  ASSERT_TRUE(device.open(QIODevice::WriteOnly));
  QTextStream out(&device);
  EXPECT_EQ(RunCommand(ParseCommandLine(WithHome(words)), {}, {out, m_err}), kExitFailed);
  EXPECT_THAT(TakeErr(), testing::AllOf(testing::StartsWith("quill: "),
                                        testing::HasSubstr("cannot be written")));
}

INSTANTIATE_TEST_SUITE_P(Words, RunCommandOnAFullDevice,
                         testing::Values("list", "list --json", "show Abel", "check", "export -",
                                         "--help", "list --help", "--version"));

class RunCommandOnAReadOnlyHome : public test::ConsoleFixture {
 protected:
  void SetUp() override {
    const QString cards = MakeFile(u"card.vcf"_qs, "BEGIN:VCARD\nN:Abel;Ann\nEND:VCARD\n");
    ASSERT_EQ(Run({u"import"_qs, cards}), kExitDone);
    TakeOut();
    // Whichever of the three this user is.
    const QFileDevice::Permissions reading{QFileDevice::ReadOwner | QFileDevice::ReadGroup |
                                           QFileDevice::ReadOther};
    const QFileDevice::Permissions entering{QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                            QFileDevice::ExeOther};
    QFile::setPermissions(Home() + u"/store.db"_qs, reading);
    QFile::setPermissions(m_folder.path(), reading | entering);
    QFile::setPermissions(Home(), reading | entering);
  }
  void TearDown() override {
    for (const QString& folder : {m_folder.path(), Home()})
      QFile::setPermissions(
          folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  }
};

TEST_F(RunCommandOnAReadOnlyHome, WhatOnlyReadsIsDone) {
  const test::OrdinaryUser user;
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Abel, Ann\n");
  EXPECT_EQ(Run({u"show"_qs, u"abel"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "FileAs: Abel, Ann\nFirstName: Ann\nLastName: Abel\n");
  EXPECT_EQ(Run({u"export"_qs, u"-"_qs}), kExitDone);
  EXPECT_THAT(TakeOut(), testing::StartsWith("BEGIN:VCARD\r\n"));
  EXPECT_EQ(TakeErr(), "-: 1 contact\n");
  EXPECT_EQ(Run({u"check"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "The file is whole and its index is right.\n");
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(RunCommandOnAReadOnlyHome, WhatWritesNamesTheFile) {
  const test::OrdinaryUser user;
  const std::string problem =
      "quill: " + Home().toStdString() + "/store.db: the file can only be read\n";
  EXPECT_EQ(Run({u"import"_qs, m_folder.filePath(u"card.vcf"_qs)}), kExitFailed);
  EXPECT_EQ(TakeErr(), problem);
  EXPECT_EQ(Run({u"receive"_qs}), kExitFailed);
  EXPECT_EQ(TakeErr(), problem);
}

TEST_F(RunCommandOn, AFailureToOpenTheStoreIsSaidOnce) {
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  for (const QString& verb : {u"list"_qs, u"check"_qs}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Run({verb}), kExitFailed);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "on the log";
    EXPECT_EQ(TakeErr(), "quill: " + Home().toStdString() + "/store.db: not a file\n");
  }
}

TEST_F(RunCommandOn, AFailureIsSaidOnceThoughNothingCanBeWritten) {
  QFile device(u"/dev/full"_qs);
  ASSERT_TRUE(device.open(QIODevice::WriteOnly));
  QTextStream out(&device);
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  out << "lost";
  EXPECT_EQ(RunCommand(ParseCommandLine(WithHome({u"list"_qs})), {}, {out, m_err}), kExitFailed);
  EXPECT_EQ(TakeErr().find("written"), std::string::npos);
}

}  // namespace
}  // namespace quill
