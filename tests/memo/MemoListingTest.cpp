#include "memo/MemoListing.h"

#include <ostream>

#include "memo/MemoTest.h"

namespace quill {
namespace {

class MemoListing : public test::MemoTest {
 protected:
  MemoListing() { FixMemoFolder(m_memo); }

  void PutAll(const QStringList& names) {
    for (const QString& name : names) Put(name);
  }
};

TEST_F(MemoListing, AllMemosAreSortedWithoutCase) {
  PutAll({u"나_1.pwi"_qs, u"beta.pwi"_qs, u"Alpha.pwi"_qs, u"Kimberly_1.pwi"_qs, u"Kim_2.PWI"_qs,
          u"gamma.txt"_qs, u"ALSO.pwi"_qs});
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"Alpha.pwi"_qs, u"ALSO.pwi"_qs, u"beta.pwi"_qs,
                                           u"Kim_2.PWI"_qs, u"Kimberly_1.pwi"_qs, u"나_1.pwi"_qs}));
}

TEST_F(MemoListing, NamesThatDifferInCaseOnlyKeepToOneOrder) {
  for (const char* name : {"kim.pwi", "Kim.pwi", "KIM.pwi"}) {
    QFile file(m_home.Folder.filePath(u"My Documents/Fennick/"_qs + QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  EXPECT_EQ(AllMemos(m_memo), QStringList({u"KIM.pwi"_qs, u"Kim.pwi"_qs, u"kim.pwi"_qs}));
}

TEST_F(MemoListing, IsEmptyWithoutAFolder) {
  m_memo.Folder = u"\\My Documents\\Missing"_qs;
  EXPECT_EQ(AllMemos(m_memo), QStringList());
}

TEST_F(MemoListing, AMemoRenamedToAnotherExtensionIsInNoList) {
  Put(u"Kim_1.pwi"_qs);
  ASSERT_TRUE(m_files.Move(MemoPath(m_memo, u"Kim_1.pwi"_qs), MemoPath(m_memo, u"Kim_1"_qs)));
  EXPECT_EQ(AllMemos(m_memo), QStringList());
  EXPECT_EQ(MemosWithPrefix(m_memo, u"Kim"_qs), QStringList());
}

TEST_F(MemoListing, AContactWhoseNameBeginsAnothersHasItsMemosToo) {
  PutAll(
      {u"Kim_1.pwi"_qs, u"Kimberly_1.pwi"_qs, u"kim_2.pwi"_qs, u"Joe_1.pwi"_qs, u"Oskim_1.pwi"_qs});
  EXPECT_EQ(MemosWithPrefix(m_memo, u"Kim"_qs),
            QStringList({u"Kim_1.pwi"_qs, u"kim_2.pwi"_qs, u"Kimberly_1.pwi"_qs}));
  EXPECT_EQ(MemosWithPrefix(m_memo, u"Kimberly"_qs), QStringList(u"Kimberly_1.pwi"_qs));
}

TEST_F(MemoListing, AContactWithoutANameHasAllMemos) {
  PutAll({u"Kim_1.pwi"_qs, u"Joe_1.pwi"_qs});
  EXPECT_EQ(MemosWithPrefix(m_memo, {}), QStringList({u"Joe_1.pwi"_qs, u"Kim_1.pwi"_qs}));
}

TEST_F(MemoListing, SignsOfPatternsInANameStandForOtherCharacters) {
  PutAll({u"Kim_1.pwi"_qs, u"Kom_1.pwi"_qs, u"[K]_1.pwi"_qs});
  EXPECT_EQ(MemosWithPrefix(m_memo, u"K?m"_qs), QStringList({u"Kim_1.pwi"_qs, u"Kom_1.pwi"_qs}));
  EXPECT_EQ(MemosWithPrefix(m_memo, u"[K]"_qs), QStringList(u"[K]_1.pwi"_qs));
}

TEST_F(MemoListing, ANameThatNoFileCanHaveHasNoMemos) {
  PutAll({u"A_1.pwi"_qs});
  for (const QString& name : {u"A/B"_qs, u"A\\B"_qs, u"..\\A"_qs})
    EXPECT_EQ(MemosWithPrefix(m_memo, name), QStringList()) << name.toStdString();
}

TEST_F(MemoListing, ATextWithASeparatorMatchesNoMemoOfAnotherFolderEither) {
  ASSERT_EQ(m_files.CreateFolder(MemoPath(m_memo, u"AC"_qs)), 0);
  PutAll({u"DC_1.pwi"_qs, u"AC\\DC_1.pwi"_qs});
  for (const QString& text : {u"AC\\DC"_qs, u"AC\\"_qs, u"\\"_qs, u"\\DC"_qs})
    EXPECT_EQ(MemosWithPrefix(m_memo, text), QStringList()) << text.toStdString();
}

struct RangeCase {
  QString Lower;
  QString Upper;
  QStringList Names;
};

void PrintTo(const RangeCase& range, std::ostream* out) {
  *out << range.Lower.toStdString() << " to " << range.Upper.toStdString();
}

class MemoRange : public MemoListing, public testing::WithParamInterface<RangeCase> {};

TEST_P(MemoRange, HoldsTheNamesInside) {
  PutAll(
      {u"0.pwi"_qs, u"adams.pwi"_qs, u"Baker.pwi"_qs, u"cole.pwi"_qs, u"Zoe.pwi"_qs, u"김.pwi"_qs});
  EXPECT_EQ(MemosInRange(m_memo, GetParam().Lower, GetParam().Upper), GetParam().Names);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, MemoRange,
    testing::Values(RangeCase{u"a"_qs, u"c"_qs, {u"adams.pwi"_qs, u"Baker.pwi"_qs}},
                    RangeCase{u"A"_qs, u"C"_qs, {u"adams.pwi"_qs, u"Baker.pwi"_qs}},
                    RangeCase{u"BAKER.PWI"_qs, u"COLE.PWI"_qs, {u"Baker.pwi"_qs}},
                    RangeCase{u"z"_qs, u"a"_qs, {u"0.pwi"_qs, u"Zoe.pwi"_qs, u"김.pwi"_qs}},
                    RangeCase{
                        u"zoe.pwi"_qs, u"adams.pwi"_qs, {u"0.pwi"_qs, u"Zoe.pwi"_qs, u"김.pwi"_qs}},
                    // Which bound sorts first is asked by case, and "a" comes after "C" then.
                    RangeCase{u"a"_qs,
                              u"C"_qs,
                              {u"0.pwi"_qs, u"adams.pwi"_qs, u"Baker.pwi"_qs, u"cole.pwi"_qs,
                               u"Zoe.pwi"_qs, u"김.pwi"_qs}},
                    RangeCase{u"b"_qs,
                              u"b"_qs,
                              {u"0.pwi"_qs, u"adams.pwi"_qs, u"Baker.pwi"_qs, u"cole.pwi"_qs,
                               u"Zoe.pwi"_qs, u"김.pwi"_qs}}));

TEST(MemoAt, IsTheNameAtAPositionOfTheList) {
  MemoState memo;
  memo.NameList = QStringList({u"A.pwi"_qs, u"B.pwi"_qs});
  EXPECT_EQ(MemoAt(memo, 0), u"A.pwi"_qs);
  EXPECT_EQ(MemoAt(memo, 1), u"B.pwi"_qs);
  EXPECT_EQ(MemoAt(memo, 2), std::nullopt);
  EXPECT_EQ(MemoAt(memo, -1), std::nullopt);
}

}  // namespace
}  // namespace quill
