// Sounds through a program of the desktop that plays a file: the first one that is found of
// pw-play, paplay and aplay.
//
// A program is not waited for: without one, without a device, or for a path that is none of the
// device's files, a sound is silent and ends at once. It also ends with the application's event
// loop, as a process is watched by that.
#pragma once

#include <memory>

#include "platform/SoundPlayer.h"

class QProcess;

namespace quill {

class DesktopDeviceFiles;

class DesktopSoundPlayer : public SoundPlayer {
 public:
  // The files are not owned and live longer.
  explicit DesktopSoundPlayer(const DesktopDeviceFiles& files);
  ~DesktopSoundPlayer() override;

  void Play(const QString& path) override;
  void Stop() override;

 private:
  void Begin(const QString& program, const QString& file);
  void End();

  const DesktopDeviceFiles& m_files;
  std::unique_ptr<QProcess> m_player;  // null while nothing plays
};

}  // namespace quill
