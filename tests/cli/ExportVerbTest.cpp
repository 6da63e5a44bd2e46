#include "cli/ExportVerb.h"

#include <QThread>

#include <gmock/gmock.h>

#include <memory>

#include "cli/ConsoleFixture.h"

#include <sys/stat.h>

namespace quill {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const QByteArray kCards =
    "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Abel;Ann;;;\r\nFN:Ann Abel\r\nCATEGORIES:Friends\r\n"
    "NOTE:kept\\, all\r\nEND:VCARD\r\n"
    "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Bell;Bob;;;\r\nFN:Bob Bell\r\nEND:VCARD\r\n";

class ExportVerb : public test::ConsoleFixture {
 protected:
  void BringIn(const QByteArray& cards) {
    ASSERT_EQ(Run({u"import"_qs, MakeFile(u"in.vcf"_qs, cards)}), kExitDone);
    TakeOut();
  }
  QString OutPath() const { return m_folder.filePath(u"out.vcf"_qs); }
  static QByteArray Content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  // The fixture's folder, without the home.
  QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(ExportVerb, WritesEveryContact) {
  BringIn(kCards);
  EXPECT_EQ(Run({u"export"_qs, OutPath()}), kExitDone);
  EXPECT_EQ(TakeOut(), OutPath().toStdString() + ": 2 contacts\n");
  EXPECT_EQ(TakeErr(), "");
  EXPECT_EQ(Content(OutPath()).toStdString(),
            "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Abel;Ann;;;\r\nFN:Ann Abel\r\n"
            "X-EVOLUTION-FILE-AS:Abel\\, Ann\r\nCATEGORIES:Friends\r\nNOTE:kept\\, all\r\n"
            "END:VCARD\r\n"
            "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Bell;Bob;;;\r\nFN:Bob Bell\r\n"
            "X-EVOLUTION-FILE-AS:Bell\\, Bob\r\nEND:VCARD\r\n");
}

TEST_F(ExportVerb, ComesInAgainAsTheSame) {
  BringIn(kCards);
  for (const QString& version : {u"2.1"_qs, u"3.0"_qs, u"4.0"_qs}) {
    EXPECT_EQ(Run({u"export"_qs, u"--vcard"_qs, version, OutPath()}), kExitDone);
    EXPECT_THAT(Content(OutPath()).toStdString(), HasSubstr("VERSION:" + version.toStdString()));
    TakeOut();
    EXPECT_EQ(Run({u"import"_qs, OutPath()}), kExitDone);
    EXPECT_THAT(TakeOut(), HasSubstr(": 0 new, "));
  }
}

TEST_F(ExportVerb, KeepsToACategoryAndAName) {
  BringIn(kCards);
  EXPECT_EQ(Run({u"--category=Friends"_qs, u"export"_qs, OutPath()}), kExitDone);
  EXPECT_EQ(Content(OutPath()).count("BEGIN"), 1);
  EXPECT_THAT(Content(OutPath()).toStdString(), HasSubstr("Abel"));
  EXPECT_EQ(Run({u"export"_qs, OutPath(), u"--contact"_qs, u"bell"_qs}), kExitDone);
  EXPECT_EQ(Content(OutPath()).count("BEGIN"), 1);
  EXPECT_THAT(Content(OutPath()).toStdString(), HasSubstr("Bell"));
}

TEST_F(ExportVerb, WritesToStandardOutput) {
  BringIn(kCards);
  EXPECT_EQ(Run({u"export"_qs, u"-"_qs, u"--contact=Bell, Bob"_qs}), kExitDone);
  const std::string out = TakeOut();
  EXPECT_THAT(out, StartsWith("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Bell;Bob;;;\r\n"));
  EXPECT_THAT(out, EndsWith("END:VCARD\r\n"));
  EXPECT_EQ(TakeErr(), "-: 1 contact\n");
}

TEST_F(ExportVerb, LeavesTheOldFileWhenThereIsNothing) {
  MakeFile(u"out.vcf"_qs, "old");
  EXPECT_EQ(Run({u"export"_qs, OutPath()}), kExitPartly);
  EXPECT_EQ(TakeErr(), "quill: there are no contacts yet\n");
  EXPECT_EQ(TakeOut(), "");
  EXPECT_EQ(Content(OutPath()), "old");
  EXPECT_EQ(Run({u"export"_qs, m_folder.filePath(u"new.vcf"_qs)}), kExitPartly);
  EXPECT_EQ(Files(), QStringList{u"out.vcf"_qs});
}

TEST_F(ExportVerb, SaysThatNobodyIsChosen) {
  BringIn(kCards);
  for (const QString& choice : {u"--category=Work"_qs, u"--contact=Zed"_qs}) {
    EXPECT_EQ(Run({u"export"_qs, choice, OutPath()}), kExitPartly);
    EXPECT_EQ(TakeErr(), "quill: there are no such contacts\n") << choice.toStdString();
  }
}

TEST_F(ExportVerb, TakesThePlaceOfAnOldFile) {
  BringIn(kCards);
  MakeFile(u"out.vcf"_qs, QByteArray(100'000, 'x'));
  EXPECT_EQ(Run({u"export"_qs, OutPath()}), kExitDone);
  EXPECT_TRUE(Content(OutPath()).endsWith("END:VCARD\r\n"));
}

TEST_F(ExportVerb, RefusesAFolderAndAPlaceThatIsNone) {
  BringIn(kCards);
  EXPECT_EQ(Run({u"export"_qs, m_folder.path()}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: " + m_folder.path().toStdString() + ": is a folder\n");
  const QString nowhere = m_folder.filePath(u"no/where.vcf"_qs);
  EXPECT_EQ(Run({u"export"_qs, nowhere}), kExitFailed);
  const std::string err = TakeErr();
  EXPECT_THAT(err, StartsWith("quill: " + nowhere.toStdString() + ": "));
  EXPECT_THAT(err, testing::Not(EndsWith(": \n")));
}

TEST_F(ExportVerb, TellsOfAFullDevice) {
  BringIn(kCards);
  EXPECT_EQ(Run({u"export"_qs, u"/dev/full"_qs}), kExitFailed);
  EXPECT_THAT(TakeErr(), StartsWith("quill: /dev/full: No space left"));
  EXPECT_EQ(TakeOut(), "");
  EXPECT_FALSE(QFileInfo(u"/dev/full"_qs).isFile()) << "the device is still there";
}

TEST_F(ExportVerb, LeavesTheOldFileWhenTheStoreFails) {
  MakeFile(u"out.vcf"_qs, "old");
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  EXPECT_EQ(Run({u"export"_qs, OutPath()}), kExitFailed);
  EXPECT_THAT(TakeErr(), StartsWith("quill: "));
  EXPECT_EQ(Content(OutPath()), "old");
  EXPECT_EQ(Files(), QStringList{u"out.vcf"_qs});
}

TEST_F(ExportVerb, WritesToAPipe) {
  BringIn(kCards);
  const QString pipe = m_folder.filePath(u"pipe"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
  QByteArray read;
  const std::unique_ptr<QThread> reader(QThread::create([&] { read = Content(pipe); }));
  reader->start();
  EXPECT_EQ(Run({u"export"_qs, pipe}), kExitDone);
  reader->wait();
  EXPECT_EQ(read.count("END:VCARD"), 2);
}

struct WrongUse {
  const char* Words;
  const char* Problem;
};

class ExportUse : public test::ConsoleFixture, public testing::WithParamInterface<WrongUse> {};

TEST_P(ExportUse, IsHeldAgainstTheOptions) {
  EXPECT_EQ(Run(QString::fromLatin1(GetParam().Words).split(u' ')), kExitFailed);
  EXPECT_THAT(TakeErr(), StartsWith(std::string("quill: ") + GetParam().Problem + '\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Words, ExportUse,
    testing::Values(WrongUse{"export", "export needs FILE"},
                    WrongUse{"export a.vcf b.vcf", "export does not take \"b.vcf\""},
                    WrongUse{"export a.vcf --vcard", "--vcard needs a value"},
                    WrongUse{"export a.vcf --vcard 3", "--vcard does not understand \"3\""},
                    WrongUse{"--vcard=2.1|3.0 export a.vcf",
                             "--vcard does not understand \"2.1|3.0\""},
                    WrongUse{"--vcard 3.0 list", "list does not know --vcard"},
                    WrongUse{"export a.vcf --category=", "--category needs a name"},
                    WrongUse{"export a.vcf --contact=", "--contact needs a name"},
                    WrongUse{"export a.vcf --json", "export does not know --json"}));

TEST_F(ExportVerb, ListsItsOptions) {
  EXPECT_EQ(Run({u"export"_qs, u"--help"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(),
            "quill export FILE [OPTION...]\n"
            "write contacts to a vCard file, - for standard output\n"
            "\n"
            "Options:\n"
            "  --vcard 2.1|3.0|4.0 the version of the cards, 3.0 when not given\n"
            "  --category NAME     only the contacts of this category\n"
            "  --contact NAME      only the contacts of this name, or whose name begins so\n");
}

}  // namespace
}  // namespace quill
