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

// The field of a street is small and stands where no whole pixel of the screen begins.
class FrameOfAField : public testing::TestWithParam<const char*> {
 protected:
  // Opens the field and takes its picture.
  void Open(ReadyDriver& driver) {
    driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"K"}})", u"oid");
    driver.Do(R"({"op":"command","id":59413})");
    driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
    driver.Do(R"({"op":"tap","on":"rows","x":120,"y":161})");
    driver.Do(R"({"op":"tap","on":"parts","x":100,"y":25})");
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("field.png"));
    driver.Do(PictureLine(file));
    m_picture = QImage(file);
    const QJsonObject at = driver.Result(R"({"op":"where","on":802})", u"where").toObject();
    const double scale = QByteArray(GetParam()).toDouble();
    const auto pixel = [&](double logical) { return qRound(logical * scale); };
    const double left = at[u"x"].toDouble(), top = at[u"y"].toDouble();
    m_area = QRect(QPoint(pixel(left), pixel(top)), QPoint(pixel(left + at[u"w"].toDouble()) - 1,
                                                           pixel(top + at[u"h"].toDouble()) - 1));
  }

  QImage m_picture;
  QRect m_area;  // of the field in the picture
};

TEST_P(FrameOfAField, IsWhole) {
  ReadyDriver driver({QStringLiteral("--scale"), QString::fromLatin1(GetParam())});
  Open(driver);
  const QRgb frame = m_picture.pixel(m_area.topLeft());
  EXPECT_NE(frame, qRgb(255, 255, 255));
  for (int x = m_area.left(); x <= m_area.right(); ++x) {
    EXPECT_EQ(m_picture.pixel(x, m_area.top()), frame) << "x " << x;
    EXPECT_EQ(m_picture.pixel(x, m_area.bottom()), frame) << "x " << x;
  }
  for (int y = m_area.top(); y <= m_area.bottom(); ++y) {
    EXPECT_EQ(m_picture.pixel(m_area.left(), y), frame) << "y " << y;
    EXPECT_EQ(m_picture.pixel(m_area.right(), y), frame) << "y " << y;
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, FrameOfAField,
                         testing::Values("1", "1.25", "1.5", "1.75", "2", "3"));
