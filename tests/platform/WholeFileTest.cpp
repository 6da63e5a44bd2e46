#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace quill {
namespace {

class WholeFile : public testing::Test {
 protected:
  QString At(const QString& name) const { return m_folder.filePath(name); }
  QByteArray Content(const QString& name) const {
    QFile file(At(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
  }
  QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

  QTemporaryDir m_folder;
};

TEST_F(WholeFile, IsMadeAndReplaced) {
  EXPECT_EQ(WriteWholeFile(At(u"a"_qs), "old"), QString());
  EXPECT_EQ(Content(u"a"_qs), "old");
  EXPECT_EQ(WriteWholeFile(At(u"a"_qs), "new"), QString());
  EXPECT_EQ(Content(u"a"_qs), "new");
  EXPECT_EQ(Names(), QStringList(u"a"_qs));
}

TEST_F(WholeFile, AFailureSaysWhyAndLeavesNothingBehind) {
  EXPECT_NE(WriteWholeFile(At(u"no such folder/a"_qs), "new"), QString());
  ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"taken"_qs));
  EXPECT_NE(WriteWholeFile(At(u"taken"_qs), "new"), QString());
  EXPECT_TRUE(Names().isEmpty());
}

// A disk that is full after so many bytes.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, SIG_DFL);
  }

 private:
  rlimit m_before;
};

TEST_F(WholeFile, AFullDiskLeavesTheOldContentAndIsTold) {
  ASSERT_EQ(WriteWholeFile(At(u"a"_qs), "old"), QString());
  for (const int size : {900, 90'000}) {
    const FullDisk full(400);
    EXPECT_NE(WriteWholeFile(At(u"a"_qs), QByteArray(size, 'n')), QString()) << size;
  }
  EXPECT_EQ(Content(u"a"_qs), "old");
  EXPECT_EQ(Names(), QStringList(u"a"_qs));
}

TEST_F(WholeFile, AFileSetAsideTakesTheFirstNameThatIsFree) {
  for (const QByteArray& content : {QByteArray("1"), QByteArray("2"), QByteArray("3")}) {
    ASSERT_EQ(WriteWholeFile(At(u"a"_qs), content), QString());
    EXPECT_NE(SetFileAside(At(u"a"_qs)), QString());
  }
  EXPECT_EQ(Names(), QStringList({u"a.bad"_qs, u"a.bad-2"_qs, u"a.bad-3"_qs}));
  EXPECT_EQ(Content(u"a.bad"_qs), "1");
  EXPECT_EQ(Content(u"a.bad-3"_qs), "3");
}

TEST_F(WholeFile, WhatIsNotThereCannotBeSetAside) {
  EXPECT_EQ(SetFileAside(At(u"a"_qs)), QString());
}

}  // namespace
}  // namespace quill
