#include "appointments/ui/SoundPreview.h"

#include <QPushButton>

#include "appointments_ui/AppointmentFixture.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"

namespace quill {
namespace {

const QString kPlayAlarm = QStringLiteral("play \\Windows\\alarm.wav");
const QString kPlayBell = QStringLiteral("play \\Windows\\Bell.wav");
const QString kStop = QStringLiteral("stop");

class SoundPreviewTest : public test::AppointmentFixture {
 protected:
  SoundPreviewTest() {
    m_list.setGeometry(10, 10, 100, 18);
    m_list.show();
    m_preview = std::make_unique<SoundPreview>(m_list, m_button);
    m_preview->FillList();
  }

  test::SampleFrame m_frame{*m_screen};
  CDropDown m_list{*m_screen, &m_frame};
  QPushButton m_button{&m_frame};
  std::unique_ptr<SoundPreview> m_preview;
};

TEST_F(SoundPreviewTest, TheButtonPlaysAndStops) {
  m_list.setCurrentIndex(1);
  EXPECT_EQ(m_button.text(), QStringLiteral(">"));
  m_button.click();
  EXPECT_EQ(m_button.text(), QStringLiteral("[]"));
  m_button.click();
  EXPECT_EQ(m_button.text(), QStringLiteral(">"));
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kStop}));
}

TEST_F(SoundPreviewTest, ASoundThatEndsByItselfStopsTheButton) {
  m_list.setCurrentIndex(1);
  m_button.click();
  m_sounds.Ended();
  EXPECT_EQ(m_button.text(), QStringLiteral(">"));
  m_button.click();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kPlayAlarm}));
}

TEST_F(SoundPreviewTest, ReplayPlaysTheNewChoice) {
  m_list.setCurrentIndex(1);
  m_button.click();
  m_list.setCurrentIndex(2);
  m_preview->Replay();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kPlayBell}));
  EXPECT_EQ(m_button.text(), QStringLiteral("[]"));
}

TEST_F(SoundPreviewTest, ReplayOfNoSoundStops) {
  m_list.setCurrentIndex(1);
  m_button.click();
  m_list.setCurrentIndex(0);
  m_preview->Replay();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kStop}));
  EXPECT_EQ(m_button.text(), QStringLiteral(">"));
}

TEST_F(SoundPreviewTest, ClosingTheListStops) {
  m_list.setCurrentIndex(1);
  m_button.click();
  const test::Steps steps(*m_screen, {[&] { m_screen->Popup()->Dismiss(); }});
  m_list.showPopup();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kStop}));
}

// The list stops what plays before its choice is played.
TEST_F(SoundPreviewTest, AChoiceFromTheOpenListIsHeardThoughTheListClosed) {
  QObject::connect(&m_list, &QComboBox::activated, m_preview.get(),
                   [this] { m_preview->Replay(); });
  m_list.setCurrentIndex(1);
  m_button.click();
  const test::Steps steps(*m_screen,
                          {[&] { m_screen->Popup()->Choose(m_screen->Popup()->Items()[2].Id); }});
  m_list.showPopup();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kStop, kPlayBell}));
  EXPECT_EQ(m_button.text(), QStringLiteral("[]"));
}

TEST_F(SoundPreviewTest, NothingPlaysAfterItsEnd) {
  m_list.setCurrentIndex(1);
  m_button.click();
  m_preview.reset();
  EXPECT_EQ(m_sounds.Asked, QStringList({kPlayAlarm, kStop}));
  EXPECT_FALSE(m_sounds.Ended);
}

TEST_F(SoundPreviewTest, ASoundThatTheDeviceDoesNotHaveIsNone) {
  m_preview->Choose(QStringLiteral("bell.WAV"));
  EXPECT_EQ(m_preview->Chosen(), QStringLiteral("Bell.wav"));
  m_preview->Choose(QStringLiteral("gone.wav"));
  EXPECT_EQ(m_preview->Chosen(), QString());
}

TEST_F(SoundPreviewTest, OnADeviceWithoutSoundTheButtonStays) {
  m_preview.reset();
  g_services.Sounds = nullptr;
  SoundPreview silent(m_list, m_button);
  m_list.setCurrentIndex(1);
  m_button.click();
  EXPECT_EQ(m_button.text(), QStringLiteral(">"));
}

}  // namespace
}  // namespace quill
