#include "memo/MemoFolder.h"

#include "memo/MemoTest.h"

namespace quill {
namespace {

// Files among which no folder can be made.
class RefusingFiles : public DesktopDeviceFiles {
 public:
  RefusingFiles(DeviceRoots roots, int code) : DesktopDeviceFiles(std::move(roots)), m_code(code) {}
  int CreateFolder(const QString&) override { return m_code; }

 private:
  int m_code;
};

class MemoFolder : public test::MemoTest {
 protected:
  void FixWith(int code) {
    RefusingFiles files({.Device = m_home.Folder.path(), .MyDocuments = m_home.Folder.path()},
                        code);
    g_services.Files = &files;
    FixMemoFolder(m_memo);
    g_services.Files = &m_files;
  }
};

TEST_F(MemoFolder, IsMadeAtTheStart) {
  FixMemoFolder(m_memo);
  EXPECT_EQ(m_memo.Folder, QStringLiteral("\\My Documents\\Fennick"));
  Put(QStringLiteral("A.pwi"));
  EXPECT_TRUE(QFile::exists(m_home.Folder.filePath(QStringLiteral("My Documents/Fennick/A.pwi"))));
}

TEST_F(MemoFolder, StaysWhereItIsWhenItIsThereAlready) {
  FixMemoFolder(m_memo);
  FixMemoFolder(m_memo);
  EXPECT_EQ(m_memo.Folder, QStringLiteral("\\My Documents\\Fennick"));
  FixWith(183);
  EXPECT_EQ(m_memo.Folder, QStringLiteral("\\My Documents\\Fennick"));
}

class MemoFolderError : public MemoFolder, public testing::WithParamInterface<int> {};

TEST_P(MemoFolderError, MovesTheMemosToMyDocumentsForTheRestOfTheRun) {
  FixWith(GetParam());
  EXPECT_EQ(m_memo.Folder, QStringLiteral("\\My Documents\\"));
}

INSTANTIATE_TEST_SUITE_P(Codes, MemoFolderError, testing::Values(3, 5, 112, 182, 184));

TEST_F(MemoFolder, PathsAfterAFallBackKeepTheirDoubledSeparator) {
  FixWith(5);
  EXPECT_EQ(MemoPath(m_memo, QStringLiteral("A.pwi")), QStringLiteral("\\My Documents\\\\A.pwi"));
  Put(QStringLiteral("A.pwi"));
  EXPECT_TRUE(QFile::exists(m_home.Folder.filePath(QStringLiteral("My Documents/A.pwi"))));
}

TEST_F(MemoFolder, PathsAreFolderAndName) {
  EXPECT_EQ(MemoPath(m_memo, QStringLiteral("A.pwi")),
            QStringLiteral("\\My Documents\\Fennick\\A.pwi"));
}

}  // namespace
}  // namespace quill
