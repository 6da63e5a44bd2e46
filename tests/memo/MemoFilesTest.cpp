#include "memo/MemoFiles.h"

#include <QDir>

#include "memo/MemoListing.h"
#include "memo/MemoTest.h"

namespace quill {
namespace {

class MemoFiles : public test::MemoTest {
 protected:
  MemoFiles() {
    FixMemoFolder(m_memo);
    for (const char* name : {"A.pwi", "B.pwi", "C.pwi", "D.pwi"}) Put(QLatin1String(name));
    m_memo.NameList = AllMemos(m_memo);
  }
  void RemoveDocuments() {
    ASSERT_TRUE(QDir(m_home.Folder.filePath(u"My Documents"_qs)).removeRecursively());
  }
  QString Path(const QString& name) const { return MemoPath(m_memo, name); }
};

TEST_F(MemoFiles, AMemoIsWrittenInThePlaceOfWhatIsThere) {
  EXPECT_TRUE(WriteMemo(m_memo, Path(u"A.pwi"_qs), "other"));
  EXPECT_EQ(m_files.ReadWhole(Path(u"A.pwi"_qs)), QByteArray("other"));
}

TEST_F(MemoFiles, ARemovedFolderIsMadeAgainWithTheNextMemo) {
  RemoveDocuments();
  EXPECT_TRUE(WriteMemo(m_memo, u"\\my documents\\FENNICK\\E.pwi"_qs, "ink"));
  EXPECT_EQ(AllMemos(m_memo), QStringList(u"E.pwi"_qs));
}

TEST_F(MemoFiles, NoOtherFolderIsMade) {
  RemoveDocuments();
  for (const QString& path : {u"\\My Documents\\Fennicks\\E.pwi"_qs, u"\\Other\\E.pwi"_qs,
                              u"\\My Documents\\Fennick\\Other\\E.pwi"_qs})
    EXPECT_FALSE(WriteMemo(m_memo, path, "ink")) << path.toStdString();
  EXPECT_FALSE(m_files.Exists(u"\\My Documents\\Fennicks"_qs));
}

TEST_F(MemoFiles, WhereTheFolderCannotBeMadeNothingIsWritten) {
  RemoveDocuments();
  ASSERT_TRUE(m_files.WriteWhole(m_memo.Folder, "a file in its place"));
  EXPECT_FALSE(WriteMemo(m_memo, Path(u"E.pwi"_qs), "ink"));
}

TEST_F(MemoFiles, AMemoIsChangedOnceItHoldsOtherBytesAndRemovedOnceItIsGone) {
  const QString path = Path(u"A.pwi"_qs);
  EXPECT_EQ(FateOfMemo(path, "ink"), MemoFate::AsRead);
  EXPECT_EQ(FateOfMemo(path, "other"), MemoFate::Changed);
  ASSERT_TRUE(m_files.WriteWhole(path, {}));
  EXPECT_EQ(FateOfMemo(path, "ink"), MemoFate::Changed);
  EXPECT_EQ(FateOfMemo(path, {}), MemoFate::AsRead);
  ASSERT_TRUE(m_files.Remove(path));
  EXPECT_EQ(FateOfMemo(path, {}), MemoFate::Removed);
}

TEST_F(MemoFiles, ADeletedMemoIsGone) {
  DeleteMemo(m_memo, u"B.pwi"_qs);
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"A.pwi"_qs, u"C.pwi"_qs, u"D.pwi"_qs}));
}

TEST_F(MemoFiles, AnEmptyNameDeletesNothing) {
  DeleteMemo(m_memo, {});
  EXPECT_EQ(AllMemos(m_memo).size(), 4);
}

TEST_F(MemoFiles, SeveralAreDeletedOneAfterTheOther) {
  DeleteMemos(m_memo, 1, 2);
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"A.pwi"_qs, u"D.pwi"_qs}));
}

TEST_F(MemoFiles, ThosePastTheEndOfTheListAreNotMissed) {
  DeleteMemos(m_memo, 3, 5);
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"A.pwi"_qs, u"B.pwi"_qs, u"C.pwi"_qs}));
}

TEST_F(MemoFiles, AMemoThatIsGoneAlreadyDoesNotKeepTheOthers) {
  DeleteMemo(m_memo, u"B.pwi"_qs);
  DeleteMemos(m_memo, 0, 3);
  EXPECT_EQ(AllMemos(m_memo), QStringList(u"D.pwi"_qs));
}

TEST_F(MemoFiles, AMovedMemoNeverTakesAnothersPlace) {
  MoveMemo(Path(u"A.pwi"_qs), Path(u"B.pwi"_qs));
  EXPECT_EQ(AllMemos(m_memo).size(), 4);
  MoveMemo(Path(u"A.pwi"_qs), Path(u"E.pwi"_qs));
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"B.pwi"_qs, u"C.pwi"_qs, u"D.pwi"_qs, u"E.pwi"_qs}));
}

TEST_F(MemoFiles, ACopyTakesTheEarlierCopysPlace) {
  const QString copy = Path(u"A_Copy.pwi"_qs);
  CopyMemo(Path(u"A.pwi"_qs), copy);
  ASSERT_TRUE(m_files.WriteWhole(Path(u"A.pwi"_qs), "changed"));
  CopyMemo(Path(u"A.pwi"_qs), copy);
  EXPECT_EQ(m_files.ReadWhole(copy), QByteArray("changed"));
}

}  // namespace
}  // namespace quill
