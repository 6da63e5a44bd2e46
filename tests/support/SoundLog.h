// A sound player that plays nothing and keeps what it was asked for: "play PATH" and "stop".
#pragma once

#include <QStringList>

#include "platform/SoundPlayer.h"

namespace quill::test {

class SoundLog : public SoundPlayer {
 public:
  void Play(const QString& path) override { Asked.append(QStringLiteral("play ") + path); }
  void Stop() override { Asked.append(QStringLiteral("stop")); }

  QStringList Asked;
};

}  // namespace quill::test
