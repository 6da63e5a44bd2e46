#include "cli/ImportVerb.h"

#include <QThread>

#include <gmock/gmock.h>

#include <memory>

#include "cli/ConsoleFixture.h"

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
const QByteArray kNamelessCard = "BEGIN:VCARD\r\nVERSION:3.0\r\nEND:VCARD\r\n";

class ImportVerb : public test::ConsoleFixture {
 protected:
  int Import(const QString& file) { return Run({u"import"_qs, file}); }
};

TEST_F(ImportVerb, BringsTheCardsIn) {
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_EQ(TakeOut(), file.toStdString() + ": 2 new, 0 the same, 0 unreadable\n");
  EXPECT_EQ(TakeErr(), "");
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Abel, Ann\nBell, Bob\n");
}

TEST_F(ImportVerb, ChangesNothingTheSecondTime) {
  const QString file = MakeFile(u"two.vcf"_qs, kTwoCards);
  ASSERT_EQ(Import(file), kExitDone);
  TakeOut();
  EXPECT_EQ(Import(file), kExitDone);
  EXPECT_THAT(TakeOut(), EndsWith(": 0 new, 2 the same, 0 unreadable\n"));
}

TEST_F(ImportVerb, NamesEachCardItCouldNotRead) {
  const QString file = MakeFile(u"mixed.vcf"_qs, kTwoCards + kNamelessCard);
  EXPECT_EQ(Import(file), kExitPartly);
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 the same, 1 unreadable\n"));
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
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 the same, 0 unreadable\n"));
}

TEST_F(ImportVerb, RefusesAFolder) {
  EXPECT_EQ(Import(m_folder.path()), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: " + m_folder.path().toStdString() + ": is a folder\n");
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
  EXPECT_THAT(TakeOut(), EndsWith(": 2 new, 0 the same, 0 unreadable\n"));
}

}  // namespace
}  // namespace quill
