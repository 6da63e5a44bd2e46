#include "app/ui/ConsentDlg.h"

#include <QCheckBox>
#include <QLabel>

#include "platform_ui/DialogFixture.h"
#include "resources/InfraredIds.h"

namespace quill {
namespace {

using test::Steps;

class ConsentDlgTest : public test::DialogFixture {
 protected:
  static QString Text(const CDialog& dialog, int id) { return Get<QLabel>(dialog, id).text(); }
  int Run(std::vector<test::Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_dialog.DoModal();
  }

  const ObexOffer m_offer{u"00:11:22:33:44:55"_qs, u"춘향의 전화"_qs, u"lee.vcf"_qs, u"이몽룡"_qs,
                          2};
  CConsentDlg m_dialog{*m_screen, m_offer};
};

TEST_F(ConsentDlgTest, NamesTheDeviceAndTheCard) {
  EXPECT_EQ(m_dialog.Caption(), QStringLiteral("Receive"));
  EXPECT_EQ(Text(m_dialog, ConsentIds::kPeer), QStringLiteral("춘향의 전화"));
  EXPECT_EQ(Text(m_dialog, ConsentIds::kAddress), QStringLiteral("00:11:22:33:44:55"));
  EXPECT_EQ(Text(m_dialog, ConsentIds::kCard), QStringLiteral("이몽룡 and 1 more"));
}

TEST_F(ConsentDlgTest, IsAnsweredByItsButtons) {
  for (const int button : {kResultYes, kResultNo})
    EXPECT_EQ(Run({[this, button] { TapControl(m_dialog, button); }}), button);
  EXPECT_FALSE(m_dialog.IsAlwaysChecked());
}

TEST_F(ConsentDlgTest, AlwaysIsAChoiceOfItsOwn) {
  EXPECT_EQ(Run({[this] { TapControl(m_dialog, ConsentIds::kAlways); },
                 [this] { TapControl(m_dialog, kResultYes); }}),
            kResultYes);
  EXPECT_TRUE(m_dialog.IsAlwaysChecked());
}

TEST_F(ConsentDlgTest, AKeyMeantForSomethingElseTakesNothing) {
  EXPECT_NE(Run({[this] {
                   m_input.Key(Qt::Key_Return);
                   m_input.Key(Qt::Key_Space);
                   EXPECT_TRUE(m_dialog.isVisible());
                 },
                 [this] { m_input.Key(Qt::Key_Escape); }}),
            kResultYes);
}

TEST_F(ConsentDlgTest, KeysReachItsButtons) {
  EXPECT_EQ(Run({[this] {
              m_input.Key(Qt::Key_Tab);
              m_input.Key(Qt::Key_Space);
              m_input.Key(Qt::Key_Tab);
              m_input.Key(Qt::Key_Return);
            }}),
            kResultYes);
  EXPECT_TRUE(m_dialog.IsAlwaysChecked());
}

TEST_F(ConsentDlgTest, ADeviceWithoutAnAddressCannotBeTrusted) {
  const CConsentDlg dialog(*m_screen, {});
  EXPECT_TRUE(dialog.Control(ConsentIds::kAlways)->isHidden());
  EXPECT_FALSE(m_dialog.Control(ConsentIds::kAlways)->isHidden());
}

TEST_F(ConsentDlgTest, LongNamesEndInsideTheWindow) {
  const CConsentDlg dialog(*m_screen, {u"host"_qs, QString(900, u'W'), {}, QString(900, u'한'), 1});
  for (const int id : {ConsentIds::kPeer, ConsentIds::kCard}) {
    const auto& label = Get<QLabel>(dialog, id);
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
    EXPECT_TRUE(label.text().endsWith(QStringLiteral("..."))) << label.text().toStdString();
  }
}

TEST_F(ConsentDlgTest, HasRoomForEveryControl) {
  for (const QWidget* const control : m_dialog.findChildren<QWidget*>()) {
    EXPECT_TRUE(m_dialog.rect().contains(control->geometry()))
        << control->accessibleName().toStdString();
    const bool isText =
        qobject_cast<const QLabel*>(control) || qobject_cast<const QCheckBox*>(control);
    if (isText) {
      EXPECT_LE(control->sizeHint().width(), control->width());
    }
  }
}

}  // namespace
}  // namespace quill
