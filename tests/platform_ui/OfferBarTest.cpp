#include "platform/ui/OfferBar.h"

#include <QAbstractButton>
#include <QLabel>

#include "platform/ui/Edit.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

constexpr int kRestore = 5;
constexpr int kDiscard = 6;

class OfferBarTest : public test::ScreenFixture {
 protected:
  OfferBarTest() {
    m_bar.RestoreAsked = [this] { m_asked.append(QStringLiteral("restore")); };
    m_bar.DiscardAsked = [this] { m_asked.append(QStringLiteral("discard")); };
  }
  void Offer(const QString& text) { m_bar.Offer(text, {10, 20, 200, 100}); }
  void Click(int id) { qobject_cast<QAbstractButton*>(m_bar.Controls().at(id))->click(); }

  test::SampleFrame m_frame{*m_screen};
  COfferBar m_bar{&m_frame, {kRestore, kDiscard}};
  QStringList m_asked;
};

TEST_F(OfferBarTest, StandsAtTheLowerEndOfItsArea) {
  EXPECT_TRUE(m_bar.isHidden());
  EXPECT_TRUE(m_bar.Controls().empty());
  Offer(QStringLiteral("this"));
  EXPECT_EQ(m_bar.geometry(), QRect(10, 98, 200, 22));
  EXPECT_FALSE(m_bar.isHidden());
}

TEST_F(OfferBarTest, ItsButtonsAskForWhatTheySay) {
  Offer(QStringLiteral("this"));
  Click(kDiscard);
  Click(kRestore);
  EXPECT_EQ(m_asked, QStringList({QStringLiteral("discard"), QStringLiteral("restore")}));
}

TEST_F(OfferBarTest, ALongTextIsCutToOneLineButSpokenWhole) {
  const QString text = QStringLiteral("one\nline of a text that is longer than the bar has room");
  Offer(text);
  const QLabel& label = *m_bar.findChild<QLabel*>();
  EXPECT_TRUE(label.text().startsWith(QStringLiteral("one line")));
  EXPECT_TRUE(label.text().endsWith(QStringLiteral("...")));
  EXPECT_EQ(label.accessibleName(), text);
}

TEST_F(OfferBarTest, HidesWhileTheInputPanelIsUp) {
  m_panel.Raise();
  Offer(QStringLiteral("this"));
  EXPECT_TRUE(m_bar.isHidden());
  EXPECT_TRUE(m_bar.Controls().empty());
  m_panel.Lower();
  Offer(QStringLiteral("this"));
  EXPECT_FALSE(m_bar.isHidden());
}

TEST_F(OfferBarTest, TakesTheFocusAtEitherEndWhileItOffersSomething) {
  EXPECT_FALSE(m_bar.TakeFocus(COfferBar::End::First));
  Offer(QStringLiteral("this"));
  EXPECT_FALSE(m_bar.HasFocus());
  EXPECT_TRUE(m_bar.TakeFocus(COfferBar::End::First));
  EXPECT_TRUE(m_bar.Controls().at(kRestore)->hasFocus());
  EXPECT_TRUE(m_bar.TakeFocus(COfferBar::End::Last));
  EXPECT_TRUE(m_bar.Controls().at(kDiscard)->hasFocus());
  EXPECT_TRUE(m_bar.HasFocus());
}

TEST_F(OfferBarTest, TabLeadsThroughItAndAsksToLeaveIt) {
  m_bar.LeaveAsked = [this](COfferBar::End end) {
    m_asked.append(end == COfferBar::End::First ? QStringLiteral("back") : QStringLiteral("on"));
    return true;
  };
  Offer(QStringLiteral("this"));
  m_bar.TakeFocus(COfferBar::End::First);
  m_input.Key(Qt::Key_Tab);
  EXPECT_TRUE(m_bar.Controls().at(kDiscard)->hasFocus());
  m_input.Key(Qt::Key_Tab);
  m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(m_bar.Controls().at(kRestore)->hasFocus());
  m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(m_asked, QStringList({QStringLiteral("on"), QStringLiteral("back")}));
}

TEST_F(OfferBarTest, WhereNobodyIsAskedTabLeadsToTheNextControl) {
  CEdit other({}, &m_frame);
  other.show();
  Offer(QStringLiteral("this"));
  m_bar.TakeFocus(COfferBar::End::Last);
  m_input.Key(Qt::Key_Tab);
  EXPECT_TRUE(other.hasFocus());
}

TEST_F(OfferBarTest, WithTheFocusItStaysUntilItLosesIt) {
  Offer(QStringLiteral("this"));
  m_bar.TakeFocus(COfferBar::End::First);
  m_panel.Raise();
  Offer(QStringLiteral("this"));
  m_input.Key(Qt::Key_Tab);
  EXPECT_FALSE(m_bar.isHidden());
  m_frame.setFocus();
  EXPECT_TRUE(m_bar.isHidden());
}

TEST_F(OfferBarTest, KeysOfItsWindowDoTheSame) {
  Offer(QStringLiteral("this"));
  m_frame.setFocus();
  m_input.Key(Qt::Key_R, Qt::ControlModifier);
  m_input.Key(Qt::Key_D, Qt::ControlModifier);
  m_input.Key(Qt::Key_D);
  EXPECT_EQ(m_asked, QStringList({QStringLiteral("restore"), QStringLiteral("discard")}));
  m_bar.Withdraw();
  EXPECT_TRUE(m_bar.isHidden());
  m_input.Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(m_asked.size(), 2);
  EXPECT_FALSE(m_bar.TakeFocus(COfferBar::End::First));
}

TEST_F(OfferBarTest, HiddenByThePanelItsKeysShowItFirstAndAnswerOnceItIsSeen) {
  for (const auto& [key, button] :
       {std::pair(Qt::Key_R, kRestore), std::pair(Qt::Key_D, kDiscard)}) {
    m_panel.Raise();
    m_frame.setFocus();
    Offer(QStringLiteral("this"));
    ASSERT_TRUE(m_bar.isHidden());
    m_asked.clear();
    m_input.Key(key, Qt::ControlModifier);
    ASSERT_FALSE(m_bar.isHidden());
    EXPECT_TRUE(m_bar.Controls().at(button)->hasFocus());
    EXPECT_TRUE(m_asked.isEmpty());
    m_input.Key(key, Qt::ControlModifier);
    EXPECT_EQ(m_asked.size(), 1);
  }
}

TEST_F(OfferBarTest, HiddenByThePanelItComesForTheFocusAndGoesWithIt) {
  m_panel.Raise();
  Offer(QStringLiteral("this"));
  EXPECT_TRUE(m_bar.TakeFocus(COfferBar::End::Last));
  EXPECT_TRUE(m_bar.Controls().at(kDiscard)->hasFocus());
  m_frame.setFocus();
  EXPECT_TRUE(m_bar.isHidden());
}

}  // namespace
}  // namespace quill
