#include "memo/MemoNames.h"

#include <ostream>

#include "memo/MemoTest.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

class MemoNames : public test::MemoTest {
 protected:
  MemoNames() { g_services.Clock = &m_clock; }

  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5, 999))};
};

TEST_F(MemoNames, AContactsMemoIsNamedAfterItAndTheLocalTime) {
  EXPECT_EQ(NewMemoPath(m_memo, u"Kim"_qs), u"\\My Documents\\Fennick\\Kim_20040915_093005.pwi"_qs);
  m_clock.Set(QDateTime(QDate(2010, 12, 31), QTime(23, 59, 58)));
  EXPECT_EQ(NewMemoPath(m_memo, u"김서연"_qs),
            u"\\My Documents\\Fennick\\김서연_20101231_235958.pwi"_qs);
}

TEST_F(MemoNames, AMemoOfNobodyIsNamedMemo) {
  EXPECT_EQ(NewUnnamedMemoPath(m_memo), u"\\My Documents\\Fennick\\Memo_20040915_093005.pwi"_qs);
}

TEST_F(MemoNames, TheOwnerOfAProposedPathIsTheContactThatItWasMadeFor) {
  for (const QString& folder : {m_memo.Folder, u"\\My Documents\\"_qs}) {
    m_memo.Folder = folder;
    for (const QString& fileAs : {u"Kim"_qs, u"A_B"_qs, u"김서연"_qs, u"Kim_20040915_093005"_qs})
      EXPECT_EQ(MemoOwner(m_memo, NewMemoPath(m_memo, fileAs)), fileAs);
    EXPECT_EQ(MemoOwner(m_memo, NewUnnamedMemoPath(m_memo)), QString());
  }
}

TEST_F(MemoNames, TheYearIsNotPadded) {
  m_clock.Set(QDateTime(QDate(987, 1, 2), QTime(3, 4, 5)));
  EXPECT_EQ(NewUnnamedMemoPath(m_memo), u"\\My Documents\\Fennick\\Memo_9870102_030405.pwi"_qs);
}

TEST_F(MemoNames, MemosOfOneSecondHaveTheSameNameAndTheSecondReplacesTheFirst) {
  FixMemoFolder(m_memo);
  const QString first = NewMemoPath(m_memo, u"Kim"_qs);
  ASSERT_TRUE(m_files.WriteWhole(first, "first"));
  const QString second = NewMemoPath(m_memo, u"Kim"_qs);
  EXPECT_EQ(second, first);
  ASSERT_TRUE(m_files.WriteWhole(second, "second"));
  EXPECT_EQ(m_files.ReadWhole(first), QByteArray("second"));
}

TEST_F(MemoNames, AContactsNameStandsThereAsItIsAndIsRefusedOnlyWhenTheFileIsWritten) {
  FixMemoFolder(m_memo);
  const QString path = NewMemoPath(m_memo, u"A/B"_qs);
  EXPECT_EQ(path, u"\\My Documents\\Fennick\\A/B_20040915_093005.pwi"_qs);
  EXPECT_FALSE(m_files.WriteWhole(path, "ink"));
}

TEST_F(MemoNames, PathsInTheFallBackFolderHoldADoubledSeparator) {
  m_memo.Folder = u"\\My Documents\\"_qs;
  EXPECT_EQ(NewMemoPath(m_memo, u"Kim"_qs), u"\\My Documents\\\\Kim_20040915_093005.pwi"_qs);
}

TEST_F(MemoNames, AFreeCopyIsOfferedThePathOfTheFirstCopyThatIsNotThere) {
  FixMemoFolder(m_memo);
  const QString path = MemoPath(m_memo, u"A.pwi"_qs);
  EXPECT_EQ(FreeMemoCopyPath(path), MemoPath(m_memo, u"A_Copy.pwi"_qs));
  Put(u"A_Copy.pwi"_qs);
  Put(u"A_Copy_Copy.pwi"_qs);
  EXPECT_EQ(FreeMemoCopyPath(path), MemoPath(m_memo, u"A_Copy_Copy_Copy.pwi"_qs));
}

struct CopyCase {
  QString Path;
  QString Copy;
};

void PrintTo(const CopyCase& each, std::ostream* out) { *out << each.Path.toStdString(); }

class MemoCopy : public testing::TestWithParam<CopyCase> {};

TEST_P(MemoCopy, IsOfferedThePathWithCopyForItsLastFourCharacters) {
  EXPECT_EQ(MemoCopyPath(GetParam().Path), GetParam().Copy);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, MemoCopy,
    testing::Values(CopyCase{u"\\My Documents\\Fennick\\A_20040101_101010.pwi"_qs,
                             u"\\My Documents\\Fennick\\A_20040101_101010_Copy.pwi"_qs},
                    CopyCase{u"\\A_Copy.pwi"_qs, u"\\A_Copy_Copy.pwi"_qs},
                    CopyCase{u"\\A.PWI"_qs, u"\\A_Copy.pwi"_qs},
                    CopyCase{u"pwi"_qs, u"_Copy.pwi"_qs}));

}  // namespace
}  // namespace quill
