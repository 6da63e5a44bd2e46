#include "app/ui/InfraredQuestions.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>

#include "app/ui/ConsentDlg.h"
#include "app/ui/ReceiverDlg.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/InfraredIds.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class InfraredQuestions : public test::ScreenFixture {
 protected:
  template <class Dialog>
  Dialog* Top() const {
    return dynamic_cast<Dialog*>(m_screen->Topmost());
  }
  // What happens while something is open that is none of the questions.
  void Behind(std::vector<Step> steps) {
    test::SampleDialog dialog(*m_screen);
    steps.push_back([&dialog] { dialog.EndDialog(kResultOK); });
    const Steps running(*m_screen, std::move(steps));
    dialog.DoModal();
  }

  test::SampleFrame m_frame{*m_screen};
};

class ReceiverPickerTest : public InfraredQuestions {
 protected:
  void Choose() {
    m_picker.Choose({QStringLiteral("desk:4711"),
                     [this](const ObexFound& found) { m_found = found; },
                     [this](const std::optional<ObexReceiver>& receiver) {
                       ++m_answers;
                       m_receiver = receiver;
                     }});
  }

  ReceiverPicker m_picker{*m_screen, m_timers};
  ObexFound m_found;
  int m_answers = 0;
  std::optional<ObexReceiver> m_receiver;
};

TEST_F(ReceiverPickerTest, AsksToWhomContactsGo) {
  const Steps steps(*m_screen, {[this] { m_screen->Topmost()->OnOK(); }});
  Choose();
  EXPECT_EQ(m_answers, 1);
  EXPECT_EQ(m_receiver, (ObexReceiver{ObexCarrier::Network, u"desk"_qs, 4711}));
}

TEST_F(ReceiverPickerTest, ShowsWhatIsFound) {
  const Steps steps(*m_screen, {[this] {
    m_found({ObexCarrier::Bluetooth, u"00:11:22:33:44:55"_qs});
    const auto* const list =
        qobject_cast<QListWidget*>(m_screen->Topmost()->Control(ReceiverIds::kFound));
    EXPECT_EQ(list->count(), 1);
    m_screen->Topmost()->OnCancel();
  }});
  Choose();
}

TEST_F(ReceiverPickerTest, NobodyIsChosenByACancel) {
  const Steps steps(*m_screen, {[this] { m_screen->Topmost()->OnCancel(); }});
  Choose();
  EXPECT_EQ(m_answers, 1);
  EXPECT_EQ(m_receiver, std::nullopt);
}

TEST_F(ReceiverPickerTest, NobodyIsChosenOnceTheProgramCloses) {
  const Steps steps(*m_screen, {[this] { m_screen->CloseAll(); }});
  Choose();
  EXPECT_EQ(m_receiver, std::nullopt);
  Choose();
  EXPECT_EQ(m_answers, 2);
  EXPECT_EQ(m_receiver, std::nullopt);
}

TEST_F(ReceiverPickerTest, WaitsForItsTurn) {
  Behind({[this] {
    Choose();
    m_timers.Advance(1000);
    EXPECT_EQ(Top<CReceiverDlg>(), nullptr);
  }});
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(Top<CReceiverDlg>(), nullptr);
    m_screen->Topmost()->OnOK();
  }});
  m_timers.Advance(100);
  EXPECT_EQ(m_answers, 1);
}

class ConsentQuestionTest : public InfraredQuestions {
 protected:
  void Ask() {
    m_question.Ask({u"127.0.0.1"_qs, {}, {}, u"Lee"_qs, 1},
                   [this](ConsentAnswer answer) { m_answers.push_back(answer); });
  }
  Step Press(int id) {
    return [this, id] {
      ASSERT_NE(Top<CConsentDlg>(), nullptr);
      qobject_cast<QAbstractButton*>(m_screen->Topmost()->Control(id))->click();
    };
  }
  using Answers = std::vector<ConsentAnswer>;

  ConsentQuestion m_question{*m_screen, m_timers};
  Answers m_answers;
};

struct ConsentCase {
  const char* Name;
  std::vector<int> Pressed;
  ConsentAnswer Answer;
};

class ConsentAnswerTest : public ConsentQuestionTest,
                          public testing::WithParamInterface<ConsentCase> {};

TEST_P(ConsentAnswerTest, IsWhatTheUserPresses) {
  std::vector<Step> pressed;
  for (const int id : GetParam().Pressed) pressed.push_back(Press(id));
  const Steps steps(*m_screen, std::move(pressed));
  Ask();
  EXPECT_EQ(m_answers, Answers{GetParam().Answer});
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, ConsentAnswerTest,
    testing::Values(
        ConsentCase{"Yes", {kResultYes}, ConsentAnswer::Wanted},
        ConsentCase{"No", {kResultNo}, ConsentAnswer::Refused},
        ConsentCase{"Always", {ConsentIds::kAlways, kResultYes}, ConsentAnswer::AlwaysWanted},
        ConsentCase{"NeverAlways", {ConsentIds::kAlways, kResultNo}, ConsentAnswer::Refused}),
    [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST_F(ConsentQuestionTest, WaitsForItsTurn) {
  Behind({[this] {
    Ask();
    m_timers.Advance(1000);
    EXPECT_EQ(Top<CConsentDlg>(), nullptr);
  }});
  EXPECT_TRUE(m_answers.empty());
  const Steps steps(*m_screen, {Press(kResultYes)});
  m_timers.Advance(100);
  EXPECT_EQ(m_answers, Answers{ConsentAnswer::Wanted});
}

TEST_F(ConsentQuestionTest, IsClosedWhenItIsTakenBack) {
  const Steps steps(*m_screen, {[this] {
    m_question.TakeBack();
    m_question.TakeBack();
  }});
  Ask();
  EXPECT_EQ(m_answers, Answers{ConsentAnswer::Refused});
  EXPECT_EQ(m_screen->Topmost(), &m_frame);
}

TEST_F(ConsentQuestionTest, IsNotAskedOnceItIsTakenBack) {
  Behind({[this] {
    Ask();
    m_question.TakeBack();
  }});
  EXPECT_EQ(m_answers, Answers{ConsentAnswer::Refused});
  m_timers.Advance(1000);
  EXPECT_EQ(m_answers.size(), 1U);
}

TEST_F(ConsentQuestionTest, NothingIsTakenBackWhenNothingIsAsked) {
  m_question.TakeBack();
  EXPECT_TRUE(m_answers.empty());
}

TEST_F(ConsentQuestionTest, SeveralAreAskedOneAfterTheOther) {
  const Steps steps(*m_screen, {Press(kResultYes), Press(kResultNo)});
  Ask();
  Ask();
  EXPECT_EQ(m_answers, (Answers{ConsentAnswer::Wanted, ConsentAnswer::Refused}));
}

TEST_F(ConsentQuestionTest, IsRefusedOnceTheProgramCloses) {
  const Steps steps(*m_screen, {[this] { m_screen->CloseAll(); }});
  Ask();
  Ask();
  EXPECT_EQ(m_answers, (Answers{ConsentAnswer::Refused, ConsentAnswer::Refused}));
}

}  // namespace
}  // namespace quill
