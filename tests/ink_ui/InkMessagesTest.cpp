#include "ink/ui/InkMessages.h"

#include <gtest/gtest.h>

#include "ink/ui/InkX.h"
#include "platform/Services.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

// No version of the format: any control gives it back as it is.
const QByteArray kForeign = "no ink of ours";

class InkMessagesTest : public testing::Test {
 protected:
  InkMessagesTest() { g_services.Clock = &m_clock; }
  ~InkMessagesTest() override { g_services.Clock = nullptr; }

  int Send(int number, const InkParameters& parameters = {}) {
    return SendInkMessage(m_ink, number, parameters);
  }

  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  InkX m_ink{nullptr};
};

TEST_F(InkMessagesTest, AnUnknownNumberDoesNothingAndAnswersZero) {
  QByteArray note = kForeign;
  for (const int number : {0, 1, 178, 1255, 1309, 1541, 1555})
    EXPECT_EQ(Send(number, {.First = 2, .Second = 150, .Data = &note}), 0) << number;
  EXPECT_EQ(m_ink.PageStyle(), kInkPage);
  EXPECT_EQ(m_ink.Zoom(), 100);
  EXPECT_EQ(m_ink.Data(), QByteArray());
}

TEST_F(InkMessagesTest, StyleZoomWrapAndViewAreSet) {
  Send(1311, {.First = 2});
  EXPECT_EQ(m_ink.PageStyle(), 2);
  EXPECT_EQ(Send(1347), 2);
  Send(1314, {.First = 75, .Second = 150});
  EXPECT_EQ(m_ink.Zoom(), 150);
  Send(1353, {.First = 0});
  EXPECT_EQ(m_ink.Wrap(), 0);
  Send(1308, {.First = 2});
  EXPECT_EQ(m_ink.View(), 2);
  EXPECT_EQ(Send(1278), 2);
}

TEST_F(InkMessagesTest, TheToggleTakesItsWord) {
  Send(1554, {.First = 1});
  EXPECT_EQ(m_ink.Toggle(), 1);
  Send(1554);
  EXPECT_EQ(m_ink.Toggle(), 0);
}

TEST_F(InkMessagesTest, DataGoInAndOutByTheirLength) {
  QByteArray in = kForeign + "and more";
  Send(1540, {.First = static_cast<int>(kForeign.size()), .Data = &in});
  EXPECT_EQ(m_ink.Data(), kForeign);
  EXPECT_EQ(Send(1538), kForeign.size());
  QByteArray out;
  EXPECT_EQ(Send(1539, {.First = 5, .Data = &out}), 5);
  EXPECT_EQ(out, kForeign.first(5));
  EXPECT_EQ(Send(1539, {.First = 1000, .Data = &out}), kForeign.size());
  EXPECT_EQ(out, kForeign);
}

TEST_F(InkMessagesTest, AllIsSelectedAndCleared) {
  m_ink.SetData(kForeign);
  Send(177, {.First = 0, .Second = -1});
  Send(771);
  EXPECT_EQ(m_ink.Data(), QByteArray());
}

TEST_F(InkMessagesTest, APageWithNothingOnItCanNeitherUndoNorCut) {
  for (const int number : {176, 198, 1270}) EXPECT_EQ(Send(number), 0) << number;
  for (const int number : {768, 769, 771, 1258, 1259}) EXPECT_EQ(Send(number), 0) << number;
  EXPECT_EQ(m_ink.DataLength(), 0);
}

}  // namespace
}  // namespace quill
