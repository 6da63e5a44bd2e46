// Plays sounds of the device, one at a time.
#pragma once

#include <QString>

#include <functional>

namespace quill {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;
  // Begins to play the file of a device path, such as "\Windows\Bell.wav", in place of what plays
  // just now, and returns at once. What cannot be played is silent and ends soon; the log says
  // why.
  virtual void Play(const QString& path) = 0;
  // Ends what plays just now.
  virtual void Stop() = 0;
  // Called when a sound ends by itself, also because it cannot be played, and not by Play or Stop.
  // Not from within Play.
  std::function<void()> Ended;
};

}  // namespace quill
