#include "list/Beaming.h"

#include "platform/Services.h"
#include "support/FreshState.h"
#include "support/InfraredLog.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class Beaming : public test::FreshState {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    g_services.Infrared = &m_folder;
    m_list.SelectedKeys = {7, 3, 5};
  }
  void ExpectBoxes(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) m_prompt.Expect(PromptAnswer::OK);
  }

  test::ScriptedPrompt m_prompt;
  test::InfraredLog m_folder;
  ListState m_list;
  const QStringList m_all{QStringLiteral("open"), QStringLiteral("add 7"), QStringLiteral("add 3"),
                          QStringLiteral("add 5"), QStringLiteral("send")};
};

TEST_F(Beaming, SendsWhatIsSelectedInTheOrderOfItsSelectionAtOnce) {
  BeamSelectedContacts(m_list);
  EXPECT_EQ(m_folder.Asked, m_all);
}

TEST_F(Beaming, SendsNothingWhenNothingIsSelected) {
  m_list.SelectedKeys.clear();
  BeamSelectedContacts(m_list);
  EXPECT_EQ(m_folder.Asked, QStringList({QStringLiteral("open"), QStringLiteral("send")}));
}

TEST_F(Beaming, SaysThatTheFolderCannotBeOpenedAndSoForEachContact) {
  m_folder.Opens = false;
  ExpectBoxes(4);
  BeamSelectedContacts(m_list);
  EXPECT_EQ(m_folder.Asked, QStringList{QStringLiteral("open")});
  for (const PromptMessage& message : m_prompt.Shown()) {
    EXPECT_EQ(message.Text, QStringLiteral("Failed to open Infrared."));
    EXPECT_EQ(message.Caption, QStringLiteral("Quill (Quillbook)"));
    EXPECT_EQ(message.Icon, PromptIcon::None);
    EXPECT_EQ(message.Buttons, PromptButtons::OK);
  }
}

TEST_F(Beaming, SaysThatAContactCannotBeHandedOverAndSendsTheOthers) {
  m_folder.Refused = {3};
  ExpectBoxes(1);
  BeamSelectedContacts(m_list);
  EXPECT_EQ(m_folder.Asked, m_all);
}

TEST_F(Beaming, SaysNothingWhenNothingCanBeSentOrReceived) {
  m_folder.Sends = false;
  m_folder.Receives = false;
  BeamSelectedContacts(m_list);
  ReceiveContacts(m_list);
  EXPECT_EQ(m_folder.Asked.last(), QStringLiteral("receive"));
}

TEST_F(Beaming, ADeviceWithoutInfraredIsOneThatCannotBeOpened) {
  g_services.Infrared = nullptr;
  ExpectBoxes(4);
  BeamSelectedContacts(m_list);
  ReceiveContacts(m_list);
}

TEST_F(Beaming, DoesNothingByMemo) {
  m_list.Mode = ViewMode::ByMemo;
  BeamSelectedContacts(m_list);
  ReceiveContacts(m_list);
  EXPECT_EQ(m_folder.Asked, QStringList());
}

// Deselects everything while a message is read.
class DeselectingPrompt : public Prompt {
 public:
  explicit DeselectingPrompt(ListState& list) : m_list(list) {}
  PromptAnswer Show(const PromptMessage&) override {
    m_list.SelectedKeys.clear();
    return PromptAnswer::OK;
  }

 private:
  ListState& m_list;
};

TEST_F(Beaming, SendsWhatWasSelectedThoughItIsNoLonger) {
  DeselectingPrompt prompt(m_list);
  g_services.Prompt = &prompt;
  m_folder.Refused = {7};
  BeamSelectedContacts(m_list);
  EXPECT_EQ(m_folder.Asked, m_all);
}

struct CanBeamCase {
  const char* Name;
  ViewMode Mode;
  std::vector<int> Selected;
  bool Can;
};

class BeamingIsPossible : public testing::TestWithParam<CanBeamCase> {};

TEST_P(BeamingIsPossible, WithASelectedContact) {
  ListState list;
  list.Mode = GetParam().Mode;
  list.SelectedKeys = GetParam().Selected;
  EXPECT_EQ(CanBeam(list), GetParam().Can);
}

INSTANTIATE_TEST_SUITE_P(Modes, BeamingIsPossible,
                         testing::Values(CanBeamCase{"Name", ViewMode::ByName, {1}, true},
                                         CanBeamCase{"Company", ViewMode::ByCompany, {1, 2}, true},
                                         CanBeamCase{"NoneSelected", ViewMode::ByName, {}, false},
                                         CanBeamCase{"Memo", ViewMode::ByMemo, {0}, false}),
                         [](const auto& parameter) { return std::string(parameter.param.Name); });

}  // namespace
}  // namespace quill
