#include "infrared/ObexTransferWatch.h"

#include <gtest/gtest.h>

#include <optional>

#include "infrared/FakeObexService.h"
#include "infrared/ObexPeers.h"
#include "support/PrivateBus.h"

namespace quill::test {
namespace {

const QString kOne = u"/org/bluez/obex/one"_qs;
const QString kOther = u"/org/bluez/obex/other"_qs;

class TransferWatch : public testing::Test {
 protected:
  void WaitFor(const QString& transfer) {
    m_watch.WaitFor(transfer, [this, transfer](bool isComplete) {
      m_heard += transfer.section(u'/', -1) + (isComplete ? u'+' : u'-');
    });
  }
  // Once this is heard, so is everything before it.
  void HearAll() {
    std::optional<bool> end;
    const QString last = u"/org/bluez/obex/last"_qs;
    m_watch.WaitFor(last, [&end](bool isComplete) { end = isComplete; });
    m_service.SetStatus(last, u"complete"_qs);
    ASSERT_TRUE(Until([&end] { return end.has_value(); }));
  }

  PrivateBus m_bus;
  FakeObexService m_service{m_bus.Connect(u"service"_qs)};
  ObexTransferWatch m_watch{m_bus.Connect(u"program"_qs)};
  QStringList m_heard;
};

TEST_F(TransferWatch, TellsHowEachEnds) {
  WaitFor(kOne);
  WaitFor(kOther);
  for (const QString& status : {u"queued"_qs, u"active"_qs, u"suspended"_qs})
    m_service.SetStatus(kOne, status);
  m_service.SetStatus(kOther, u"error"_qs);
  m_service.SetStatus(kOne, u"complete"_qs);
  m_service.SetStatus(kOne, u"complete"_qs);
  HearAll();
  EXPECT_EQ(m_heard, (QStringList{u"other-"_qs, u"one+"_qs}));
}

TEST_F(TransferWatch, TellsOfOneThatHadEndedBefore) {
  m_service.SetStatus(kOne, u"error"_qs);
  HearAll();
  WaitFor(kOne);
  EXPECT_EQ(m_heard, QStringList{u"one-"_qs});
  WaitFor(kOne);
  EXPECT_EQ(m_heard.size(), 1) << "told once";
}

TEST_F(TransferWatch, TellsNothingOfWhatIsForgotten) {
  WaitFor(kOne);
  m_watch.Forget(kOne);
  m_service.SetStatus(kOne, u"complete"_qs);
  HearAll();
  EXPECT_TRUE(m_heard.isEmpty());
}

TEST_F(TransferWatch, KeepsFewOfOtherPrograms) {
  m_service.SetStatus(kOne, u"complete"_qs);
  for (int i = 0; i < 64; ++i) m_service.SetStatus(kOther + QString::number(i), u"complete"_qs);
  HearAll();
  WaitFor(kOne);
  EXPECT_TRUE(m_heard.isEmpty()) << "it is forgotten";
}

}  // namespace
}  // namespace quill::test
