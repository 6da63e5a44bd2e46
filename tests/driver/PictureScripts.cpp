// Pictures of the screen, and its look at every scale.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

QByteArray PictureLine(const QString& file, const QByteArray& rest = {}) {
  return R"({"op":"screenshot","file":")" + file.toUtf8() + '"' + rest + '}';
}

int Colors(const QImage& picture) {
  QSet<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) colors.insert(picture.pixel(x, y));
  return static_cast<int>(colors.size());
}

}  // namespace

class Picture : public testing::TestWithParam<const char*> {};

TEST_P(Picture, HasTheScreensSizeAtThisScaleAndShowsTheDialog) {
  const QTemporaryDir folder;
  const QString bare = folder.filePath(QStringLiteral("bare.png"));
  const QString covered = folder.filePath(QStringLiteral("covered.png"));
  ReadyDriver driver({QStringLiteral("--scale"), QString::fromLatin1(GetParam())});
  driver.Do(PictureLine(bare));
  driver.Do(R"({"op":"command","id":57664})");
  driver.Do(PictureLine(covered));
  const double scale = QByteArray(GetParam()).toDouble();
  const QImage picture(bare);
  EXPECT_EQ(picture.size(), (QSizeF(240, 320) * scale).toSize());
  EXPECT_GT(Colors(picture), 8);
  EXPECT_NE(picture, QImage(covered));
}

INSTANTIATE_TEST_SUITE_P(Scales, Picture, testing::Values("1", "1.5", "2", "3"));

TEST(Picture, TakesAScaleOfItsOwn) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("large.png"));
  ReadyDriver driver;
  driver.Do(PictureLine(file, R"(,"scale":2.5)"));
  EXPECT_EQ(QImage(file).size(), QSize(600, 800));
}

TEST(Picture, IsTheSameFromRunToRun) {
  const QTemporaryDir folder;
  QImage pictures[2];
  for (QImage& picture : pictures) {
    ReadyDriver driver({QStringLiteral("--now"), QStringLiteral("2004-09-15T09:30:05")});
    const QString file = folder.filePath(QStringLiteral("picture.png"));
    driver.Do(PictureLine(file));
    picture = QImage(file);
  }
  EXPECT_EQ(pictures[0], pictures[1]);
}

TEST(Picture, OfAFocusedEditorStaysTheSameInEveryShell) {
  const QTemporaryDir folder;
  const QString early = folder.filePath(QStringLiteral("early.png"));
  const QString late = folder.filePath(QStringLiteral("late.png"));
  ReadyDriver driver({QStringLiteral("--now"), QStringLiteral("2004-09-15T09:30:05")});
  for (int shell = 0; shell < 2; ++shell) {
    driver.Do(R"({"op":"set","id":1028,"text":"Baker"})");
    driver.Do(PictureLine(early));
    driver.Do(R"({"op":"wait","ms":700})");
    driver.Do(PictureLine(late));
    EXPECT_EQ(QImage(early), QImage(late)) << "shell " << shell;
    driver.Do(R"({"op":"command","id":60001})");
  }
}

TEST(Picture, ThatCannotBeWrittenIsRefused) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(PictureLine(QStringLiteral("/no/such/folder/x.png"))),
            QStringLiteral("not written"));
  EXPECT_EQ(driver.Error(R"({"op":"screenshot"})"), QStringLiteral("malformed"));
}
