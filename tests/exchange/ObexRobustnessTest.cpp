// Whatever a peer sends, its session ends, and neither side holds or says much. What changed
// sessions do beside these stands with the fuzz targets.
#include <QDir>
#include <QFile>
#include <QList>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "exchange/ObexTrial.h"

namespace quill::test {
namespace {

constexpr int kSessions = 10'000;

class AnySession : public testing::Test {
 protected:
  qsizetype Below(std::size_t limit) { return static_cast<qsizetype>(m_random() % limit); }
  QByteArray RandomBytes(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(), [this] { return static_cast<char>(m_random()); });
    return bytes;
  }

  std::mt19937 m_random{1};
};

QList<QByteArray> Samples() {
  const QDir folder(QStringLiteral(QUILL_TEST_DATA "/obex"));
  QList<QByteArray> samples;
  for (const QString& name : folder.entryList({QStringLiteral("*.obex")}, QDir::Files)) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    samples += file.readAll();
  }
  return samples;
}

TEST_F(AnySession, OfRandomBytesEnds) {
  for (int i = 0; i < kSessions; ++i) {
    ASSERT_EQ(ObexTrialProblem(RandomBytes(2 + Below(400))), "") << i;
  }
}

TEST_F(AnySession, OfRandomPacketsEnds) {
  const QByteArray codes = QByteArray::fromHex("800282ff8103838590a0c3");
  for (int i = 0; i < kSessions; ++i) {
    QByteArray session = RandomBytes(2);
    for (qsizetype count = Below(8); count > 0; --count) {
      const QByteArray content = RandomBytes(Below(40));
      session += codes.at(Below(static_cast<std::size_t>(codes.size())));
      session += '\0';
      session += static_cast<char>(content.size() + 3) + content;
    }
    ASSERT_EQ(ObexTrialProblem(session), "") << i;
  }
}

TEST_F(AnySession, OfChangedBytesEnds) {
  const QList<QByteArray> samples = Samples();
  ASSERT_GE(samples.size(), 10);
  for (int i = 0; i < kSessions; ++i) {
    QByteArray session = samples.at(i % samples.size());
    for (qsizetype count = 1 + Below(6); count > 0; --count) {
      session[Below(static_cast<std::size_t>(session.size()))] = RandomBytes(1).front();
    }
    ASSERT_EQ(ObexTrialProblem(session), "") << i;
  }
}

TEST_F(AnySession, OfASampleEndsWhereverItIsCutOff) {
  for (const QByteArray& sample : Samples()) {
    for (qsizetype size = 0; size <= sample.size(); ++size)
      ASSERT_EQ(ObexTrialProblem(sample.first(size)), "") << size;
  }
}

}  // namespace
}  // namespace quill::test
