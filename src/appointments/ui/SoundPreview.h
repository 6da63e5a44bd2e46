// Plays the sound that is chosen in a list of sounds. Its button shows ">" while nothing plays and
// "[]" while something does.
#pragma once

#include <QObject>
#include <QString>

class QPushButton;

namespace quill {

class CDropDown;

class SoundPreview : public QObject {
 public:
  // Both outlive this.
  SoundPreview(CDropDown& sounds, QPushButton& button);
  // Nothing plays any more.
  ~SoundPreview() override;

  // Fills the list: "Sound off", then the device's sounds; the first one is selected.
  void FillList();
  // The file name; empty when sound is off.
  QString Chosen() const;
  // The first one when there is no such sound.
  void Choose(const QString& name);

  // Plays the chosen sound, in place of another one, or none when sound is off.
  void Replay();
  void Stop();

 private:
  void Turn();
  void SetPlaying(bool playing);

  CDropDown& m_sounds;
  QPushButton& m_button;
  bool m_playing = false;
};

}  // namespace quill
