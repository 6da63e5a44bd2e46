#include "app/ui/ReceiverDlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "platform/Services.h"
#include "platform_ui/DialogFixture.h"
#include "resources/InfraredIds.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class ReceiverDlgTest : public test::DialogFixture {
 protected:
  ReceiverDlgTest() { g_services.Prompt = &m_prompt; }
  ~ReceiverDlgTest() override { g_services.Prompt = nullptr; }

  QLineEdit& Address() { return Get<QLineEdit>(m_dialog, ReceiverIds::kAddress); }
  QListWidget& Found() { return Get<QListWidget>(m_dialog, ReceiverIds::kFound); }
  QString Label() { return Get<QLabel>(m_dialog, ReceiverIds::kFoundLabel).text(); }
  QPoint At(int row) {
    return Found().viewport()->mapTo(m_screen, Found().visualItemRect(Found().item(row)).center());
  }
  int Run(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_dialog.DoModal();
  }
  Step OK() {
    return [this] { m_dialog.OnOK(); };
  }

  test::ScriptedPrompt m_prompt;
  CReceiverDlg m_dialog{*m_screen, QStringLiteral("192.168.0.7:4711")};
  const ObexReceiver m_last{ObexCarrier::Network, u"192.168.0.7"_qs, 4711};
  const ObexReceiver m_phone{ObexCarrier::Bluetooth, u"00:11:22:33:44:55"_qs, 0, u"갤럭시"_qs};
  const ObexReceiver m_other{ObexCarrier::Bluetooth, u"00:11:22:33:44:66"_qs};
};

TEST_F(ReceiverDlgTest, OffersTheOneThatWasChosenLast) {
  EXPECT_EQ(m_dialog.Caption(), QStringLiteral("Beam to"));
  EXPECT_EQ(Label(), QStringLiteral("No device found yet"));
  EXPECT_EQ(Run({[this] {
              EXPECT_FALSE(m_panel.IsUp()) << "nothing has to be typed";
              m_input.Key(Qt::Key_Return);
            }}),
            kResultOK);
  EXPECT_EQ(m_dialog.Receiver(), m_last);
}

TEST_F(ReceiverDlgTest, TakesWhatIsTyped) {
  EXPECT_EQ(Run({[this] {
                   TapControl(m_dialog, ReceiverIds::kAddress);
                   EXPECT_TRUE(m_panel.IsUp());
                   Address().selectAll();
                   m_input.Type(QStringLiteral(" desk "));
                 },
                 OK()}),
            kResultOK);
  EXPECT_EQ(m_dialog.Receiver(), (ObexReceiver{ObexCarrier::Network, u"desk"_qs, 26'500}));
}

TEST_F(ReceiverDlgTest, WhatIsTypedOverTheDevicesIsAnAddress) {
  EXPECT_EQ(Run({[this] {
                   m_input.Type(QStringLiteral("desk"));
                   EXPECT_EQ(Address().text(), QStringLiteral("desk"));
                 },
                 OK()}),
            kResultOK);
}

TEST_F(ReceiverDlgTest, ListsWhatIsFoundWhileItIsOpen) {
  Run({[this] {
         m_dialog.AddFound(m_phone);
         m_dialog.AddFound(m_other);
         m_dialog.AddFound(m_phone);
         EXPECT_EQ(Label(), QStringLiteral("Devices found"));
         ASSERT_EQ(Found().count(), 2);
         EXPECT_EQ(Found().item(0)->text(), QStringLiteral("갤럭시  (00:11:22:33:44:55)"));
         EXPECT_EQ(Found().item(1)->text(), QStringLiteral("00:11:22:33:44:66"));
         m_input.Tap(At(1));
         EXPECT_EQ(Address().text(), QStringLiteral("00:11:22:33:44:66"));
       },
       OK()});
  EXPECT_EQ(m_dialog.Receiver(), m_other);
}

TEST_F(ReceiverDlgTest, ASecondTapTakesADevice) {
  m_dialog.AddFound(m_phone);
  EXPECT_EQ(Run({[this] {
              m_input.Tap(At(0));
              m_input.PressAgain(At(0));
              m_input.Release(At(0));
            }}),
            kResultOK);
  ASSERT_TRUE(m_dialog.Receiver().has_value());
  EXPECT_EQ(m_dialog.Receiver()->Address, m_phone.Address);
}

TEST_F(ReceiverDlgTest, KeysChooseADevice) {
  m_dialog.AddFound(m_phone);
  m_dialog.AddFound(m_other);
  EXPECT_EQ(Run({[this] {
              m_input.Key(Qt::Key_Down);
              EXPECT_EQ(Address().text(), m_phone.Address);
              m_input.Key(Qt::Key_Down);
              m_input.Key(Qt::Key_Return);
            }}),
            kResultOK);
  EXPECT_EQ(m_dialog.Receiver(), m_other);
}

TEST_F(ReceiverDlgTest, ATypedAddressIsNoDeviceOfTheList) {
  m_dialog.AddFound(m_phone);
  Run({[this] {
         m_input.Tap(At(0));
         TapControl(m_dialog, ReceiverIds::kAddress);
         Address().selectAll();
         m_input.Type(QStringLiteral("desk"));
         EXPECT_TRUE(Found().selectedItems().isEmpty());
       },
       OK()});
  EXPECT_EQ(m_dialog.Receiver()->Address, QStringLiteral("desk"));
}

TEST_F(ReceiverDlgTest, StaysWithAMessageWhenItIsNoAddress) {
  m_prompt.Expect(PromptAnswer::OK);
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Run({[this] {
                   Address().setText(QStringLiteral("a b:x"));
                   m_dialog.OnOK();
                   EXPECT_TRUE(m_dialog.isVisible());
                   EXPECT_EQ(Address().selectedText(), QStringLiteral("a b:x"));
                   Address().clear();
                   m_dialog.OnOK();
                 },
                 [this] { m_input.Key(Qt::Key_Escape); }}),
            kResultCancel);
  ASSERT_EQ(m_prompt.Shown().size(), 2U);
  EXPECT_EQ(m_prompt.Shown()[0].Text,
            QStringLiteral("This is no address. One looks like 192.168.0.7:26500."));
  EXPECT_EQ(m_prompt.Shown()[1].Text,
            QStringLiteral("Choose a device or type an address, such as 192.168.0.7:26500."));
}

TEST_F(ReceiverDlgTest, MakesRoomForTheInputPanel) {
  Run({[this] {
         m_panel.Raise();
         EXPECT_LE(m_dialog.geometry().bottom(), m_panel.VisibleArea().bottom());
         EXPECT_EQ(Found().geometry().bottom(), m_dialog.rect().bottom());
         m_panel.Lower();
       },
       [this] { m_dialog.OnCancel(); }});
}

TEST_F(ReceiverDlgTest, ADevicesNameMovesNothing) {
  m_dialog.AddFound({ObexCarrier::Bluetooth, u"00:11:22:33:44:77"_qs, 0, u"a\u202eb\nc"_qs});
  EXPECT_EQ(Found().item(0)->text(), QStringLiteral("ab c  (00:11:22:33:44:77)"));
}

}  // namespace
}  // namespace quill
