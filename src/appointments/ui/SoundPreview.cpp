#include "appointments/ui/SoundPreview.h"

#include <QPushButton>

#include <algorithm>
#include <utility>

#include "appointments/SoundNames.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"
#include "platform/ui/DropDown.h"

namespace quill {

SoundPreview::SoundPreview(CDropDown& sounds, QPushButton& button)
    : m_sounds(sounds), m_button(button) {
  m_button.setAccessibleName(QStringLiteral("Play the sound"));
  connect(&m_button, &QPushButton::clicked, this, &SoundPreview::Turn);
  m_sounds.Closed = [this] { Stop(); };
  if (g_services.Sounds) g_services.Sounds->Ended = [this] { SetPlaying(false); };
  SetPlaying(false);
}

SoundPreview::~SoundPreview() {
  Stop();
  m_sounds.Closed = {};
  if (g_services.Sounds) g_services.Sounds->Ended = {};
}

// Only these sounds are offered: intended.
void SoundPreview::FillList() {
  m_sounds.addItem(kSoundOff.toString());
  m_sounds.addItems(SoundNames({QStringLiteral("wav")}));
  m_sounds.setCurrentIndex(0);
}

QString SoundPreview::Chosen() const {
  return m_sounds.currentIndex() > 0 ? m_sounds.currentText() : QString();
}

void SoundPreview::Choose(const QString& name) {
  m_sounds.setCurrentIndex(std::max(m_sounds.findText(name, Qt::MatchFixedString), 0));
}

void SoundPreview::Turn() { m_playing ? Stop() : Replay(); }

void SoundPreview::Replay() {
  if (Chosen().isEmpty() || !g_services.Sounds) return Stop();
  SetPlaying(true);
  g_services.Sounds->Play(SoundPath(Chosen()));
}

void SoundPreview::Stop() {
  if (m_playing && g_services.Sounds) g_services.Sounds->Stop();
  SetPlaying(false);
}

void SoundPreview::SetPlaying(bool playing) {
  m_playing = playing;
  m_button.setText(playing ? QStringLiteral("[]") : QStringLiteral(">"));
}

}  // namespace quill
