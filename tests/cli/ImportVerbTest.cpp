#include "cli/ImportVerb.h"

#include <QThread>

#include <gmock/gmock.h>

#include <memory>

#include "cli/ConsoleFixture.h"
#include "cli/InputFrom.h"
#include "exchange/CardCharset.h"

#include <sys/stat.h>

namespace quill {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

const QByteArray kTwoCards =
    "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Abel;Ann;;;\r\nFN:Ann Abel\r\nTEL;TYPE=CELL:010-0000-0001\r\n"
    "END:VCARD\r\n"
    "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Bell;Bob;;;\r\nFN:Bob Bell\r\nEMAIL:bob@example.org\r\n"
    "END:VCARD\r\n";
const QByteArray kOneCard = "BEGIN:VCARD\nFN:Cox\nTEL:1\nEND:VCARD\n";
const QByteArray kMoreOfOneCard = "BEGIN:VCARD\nFN:Cox\nTEL:1\nTITLE:Cook\nEND:VCARD\n";
const QByteArray kNamelessCard = "BEGIN:VCARD\r\nVERSION:3.0\r\nEND:VCARD\r\n";

class ImportVerb : public test::ConsoleFixture {
 protected:
  int Import(const QString& file) { return Run({u"import"_qs, file}); }
};

TEST_F(ImportVerb, BringsTheCardsIn) {
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_EQ(TakeOut(), file.toStdString() + ": 2 new, 0 changed, 0 the same, 0 unreadable\n");
  EXPECT_EQ(TakeErr(), "");
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Abel, Ann\nBell, Bob\n");
}

TEST_F(ImportVerb, ChangesNothingTheSecondTime) {
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  ASSERT_EQ(Import(file), kExitDone);
  TakeOut();
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 0 new, 0 changed, 2 the same, 0 unreadable\n"));
}

TEST_F(ImportVerb, NamesEachCardItCouldNotRead) {
  const QString file = MakeFile(u"mixed.vcf"_qs, kTwoCards + kNamelessCard);
  EXPECT_EQ(Import(file), kExitPartly);
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 changed, 0 the same, 1 unreadable\n"));
  EXPECT_EQ(TakeErr(),
            file.toStdString() + ":13: card 3: it holds no name, company, number or address\n");
}

TEST_F(ImportVerb, CountsLinesThatItDidNotUnderstand) {
  const QString file = MakeFile(u"stray.vcf"_qs, "what is this\r\n" + kTwoCards);
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_EQ(TakeErr(), file.toStdString() + ": lines not understood: 1\n");
}

TEST_F(ImportVerb, TellsOfAMissingFileAndTakesTheNext) {
  const QString missing = m_folder.filePath(u"missing.vcf"_qs);
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  EXPECT_EQ(Run({u"import"_qs, missing, file}), kExitFailed);
  EXPECT_THAT(TakeErr(), HasSubstr("quill: " + missing.toStdString() + ": "));
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 changed, 0 the same, 0 unreadable\n"));
}

TEST_F(ImportVerb, TakesTheCardFilesOfAFolder) {
  const QString folder = m_folder.filePath(u"cards"_qs);
  ASSERT_TRUE(QDir().mkpath(folder + u"/b"_qs));
  MakeFile(u"cards/b/two.VCF"_qs, kTwoCards);
  MakeFile(u"cards/a.vcard"_qs, kOneCard);
  MakeFile(u"cards/notes.txt"_qs, kTwoCards);
  EXPECT_EQ(Import(folder), kExitDone);
  EXPECT_EQ(TakeOut(),
            folder.toStdString() + "/a.vcard: 1 new, 0 changed, 0 the same, 0 unreadable\n" +
                folder.toStdString() + "/b/two.VCF: 2 new, 0 changed, 0 the same, 0 unreadable\n" +
                "2 files: 3 new, 0 changed, 0 the same, 0 unreadable\n");
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(ImportVerb, FindsNothingInAFolderWithoutCardFiles) {
  EXPECT_EQ(Import(m_folder.path()), kExitPartly);
  EXPECT_EQ(TakeErr(), "quill: " + m_folder.path().toStdString() + ": no card files in it\n");
  EXPECT_EQ(TakeOut(), "");
}

TEST_F(ImportVerb, SumsUpSeveralFiles) {
  const QString first = MakeFile(u"1.vcf"_qs, kTwoCards);
  const QString second = MakeFile(u"2.vcf"_qs, kTwoCards + kNamelessCard);
  const QString third = MakeFile(u"3.vcf"_qs,
                                 "BEGIN:VCARD\nN:Abel;Ann;;;\nTITLE:Cook\n"
                                 "TEL:01000000001\nEND:VCARD\n");
  EXPECT_EQ(Run({u"import"_qs, first, second, third}), kExitPartly);
  EXPECT_THAT(TakeOut(), EndsWith("3 files: 2 new, 1 changed, 2 the same, 1 unreadable\n"));
}

TEST_F(ImportVerb, MergesUnlessItIsTold) {
  const QString one = MakeFile(u"one.vcf"_qs, kOneCard);
  const QString more = MakeFile(u"more.vcf"_qs, kMoreOfOneCard);
  EXPECT_EQ(Import(one), kExitDone);
  EXPECT_EQ(Run({u"import"_qs, more, u"--on-duplicate=skip"_qs}), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 0 new, 0 changed, 1 the same, 0 unreadable\n"));
  EXPECT_EQ(Run({u"import"_qs, more, u"--on-duplicate=merge"_qs}), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 0 new, 1 changed, 0 the same, 0 unreadable\n"));
  EXPECT_EQ(Import(more), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 0 new, 0 changed, 1 the same, 0 unreadable\n"));
  EXPECT_EQ(Run({u"import"_qs, more, u"--on-duplicate"_qs, u"add"_qs}), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 1 new, 0 changed, 0 the same, 0 unreadable\n"));
}

TEST_F(ImportVerb, ReadsUndeclaredTextInTheCharsetThatItIsTold) {
  const QString file = MakeFile(u"cyrillic.vcf"_qs, "BEGIN:VCARD\nFN:\xC4\xE0\nEND:VCARD\n");
  EXPECT_EQ(Run({u"import"_qs, u"--charset"_qs, u"windows-1251"_qs, file}), kExitDone);
  EXPECT_EQ(TakeErr(), "");
  TakeOut();
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Да\n");
}

TEST_F(ImportVerb, SaysInWhichCharsetItReadUndeclaredText) {
  const QString file = MakeFile(
      u"old.vcf"_qs, "BEGIN:VCARD\nFN:Gr\xFCn\nEND:VCARD\nBEGIN:VCARD\nFN:\xD6zil\nEND:VCARD\n");
  EXPECT_EQ(Import(file), kExitDone);
  const QByteArray charset = FallbackCharset(QLocale::system());
  EXPECT_EQ(TakeErr(), "quill: " + file.toStdString() +
                           ": does not say how its letters are written; read as " +
                           charset.toStdString() + " (--charset)\n");
}

TEST_F(ImportVerb, DeclaredTextIsNoGuess) {
  const QString file =
      MakeFile(u"declared.vcf"_qs, "BEGIN:VCARD\nFN;CHARSET=ISO-8859-1:Gr\xFCn\nEND:VCARD\n");
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(ImportVerb, RefusesACharsetThatThereIsNot) {
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  EXPECT_EQ(Run({u"import"_qs, u"--charset=klingon"_qs, file}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: there is no character set klingon\n");
  EXPECT_EQ(TakeOut(), "");
}

class ImportVerbRejects : public ImportVerb {
 protected:
  int ImportInto(const QString& rejects, const QString& file) {
    return Run({u"import"_qs, u"--rejects"_qs, rejects, file});
  }
  QByteArray Kept() const {
    QFile file(m_rejects);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  QString m_rejects = m_folder.filePath(u"rejects.vcf"_qs);
};

TEST_F(ImportVerbRejects, AreTheCardsThatCouldNotBeRead) {
  const QString file = MakeFile(u"mixed.vcf"_qs, kNamelessCard + kTwoCards + kNamelessCard);
  EXPECT_EQ(ImportInto(m_rejects, file), kExitPartly);
  EXPECT_EQ(Kept(), kNamelessCard + kNamelessCard);
}

TEST_F(ImportVerbRejects, LeaveAnEarlierFileAloneWhenThereAreNone) {
  MakeFile(u"rejects.vcf"_qs, "of yesterday");
  EXPECT_EQ(ImportInto(m_rejects, MakeFile(u"two.vcf"_qs, kTwoCards)), kExitDone);
  EXPECT_EQ(Kept(), "of yesterday");
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2) << "nothing beside it either";
}

TEST_F(ImportVerbRejects, TakeThePlaceOfAnEarlierFile) {
  MakeFile(u"rejects.vcf"_qs, "of yesterday");
  EXPECT_EQ(ImportInto(m_rejects, MakeFile(u"bad.vcf"_qs, kNamelessCard)), kExitPartly);
  EXPECT_EQ(Kept(), kNamelessCard);
}

TEST_F(ImportVerbRejects, AreNeverAFileThatIsBroughtIn) {
  const QString file = MakeFile(u"bad.vcf"_qs, kNamelessCard);
  for (const QString& argument : {file, m_folder.path()}) {
    EXPECT_EQ(ImportInto(m_folder.path() + u"/./bad.vcf"_qs, argument), kExitFailed);
    EXPECT_THAT(TakeErr(), EndsWith("bad.vcf is to be brought in itself\n"));
  }
}

TEST_F(ImportVerbRejects, FailBeforeAnythingIsBroughtIn) {
  const QString rejects = m_folder.filePath(u"no-folder/rejects.vcf"_qs);
  EXPECT_EQ(ImportInto(rejects, MakeFile(u"two.vcf"_qs, kTwoCards)), kExitFailed);
  EXPECT_THAT(TakeErr(), testing::StartsWith("quill: " + rejects.toStdString() + ": "));
  EXPECT_EQ(TakeOut(), "");
}

TEST_F(ImportVerb, TellsOfAFileThatCannotBeOpened) {
  // A link to itself cannot be opened by anybody, not even by the administrator.
  const QString loop = m_folder.filePath(u"loop.vcf"_qs);
  ASSERT_TRUE(QFile::link(loop, loop));
  EXPECT_EQ(Import(loop), kExitFailed);
  const std::string err = TakeErr();
  EXPECT_THAT(err, testing::StartsWith("quill: " + loop.toStdString() + ": "));
  EXPECT_THAT(err, testing::Not(EndsWith(": \n")));
}

TEST_F(ImportVerb, TellsOfAFileThatFailsInTheMiddle) {
  // The first page of a process' memory is not there to be read.
  EXPECT_EQ(Import(u"/proc/self/mem"_qs), kExitFailed);
  const std::string err = TakeErr();
  EXPECT_THAT(err, testing::StartsWith("quill: /proc/self/mem: "));
}

TEST_F(ImportVerb, FindsNothingInAnEmptyFile) {
  const QString file = MakeFile(u"empty.vcf"_qs, "");
  EXPECT_EQ(Import(file), kExitPartly);
  EXPECT_EQ(TakeErr(), "quill: " + file.toStdString() + ": no contacts in it\n");
  EXPECT_EQ(TakeOut(), "");
}

TEST_F(ImportVerb, FindsNothingInAFileThatIsNoCard) {
  const QString file = MakeFile(u"picture.png"_qs, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
  EXPECT_EQ(Import(file), kExitPartly);
  EXPECT_THAT(TakeErr(), EndsWith("picture.png: no contacts in it\n"));
}

TEST_F(ImportVerb, FailsWithoutAStore) {
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  EXPECT_EQ(Import(MakeFile(u"two.vcf"_qs, kTwoCards)), kExitFailed);
  EXPECT_THAT(TakeErr(), testing::StartsWith("quill: "));
  EXPECT_EQ(TakeOut(), "");
}

TEST_F(ImportVerb, FailsWithoutAHome) {
  const QString file = MakeFile(u"home"_qs, "");
  EXPECT_EQ(Import(file), kExitFailed);
  EXPECT_THAT(TakeErr(), HasSubstr("cannot make the folder"));
}

TEST_F(ImportVerb, SaysWhoseCardItCouldNotRead) {
  const QString file = MakeFile(u"nick.vcf"_qs, "BEGIN:VCARD\nNICKNAME:Jay\nEND:VCARD\n");
  EXPECT_EQ(Import(file), kExitPartly);
  EXPECT_EQ(TakeErr(), file.toStdString() +
                           ":1: card 1 (Jay): it holds no name, company, number or address\n");
}

TEST_F(ImportVerb, ReadsStandardInput) {
  QFile file(MakeFile(u"two.vcf"_qs, kTwoCards));
  const test::InputFrom input(file);
  EXPECT_EQ(Import(u"-"_qs), kExitDone);
  EXPECT_EQ(TakeOut(), "standard input: 2 new, 0 changed, 0 the same, 0 unreadable\n");
}

TEST_F(ImportVerb, ReadsAPipe) {
  const QString pipe = m_folder.filePath(u"pipe"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
  const std::unique_ptr<QThread> writer(QThread::create([&pipe] {
    QFile end(pipe);
    EXPECT_TRUE(end.open(QIODevice::WriteOnly));  // waits for the reader
    EXPECT_EQ(end.write(kTwoCards), kTwoCards.size());
  }));
  writer->start();
  EXPECT_EQ(Import(pipe), kExitDone);
  writer->wait();
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 changed, 0 the same, 0 unreadable\n"));
}

}  // namespace
}  // namespace quill
