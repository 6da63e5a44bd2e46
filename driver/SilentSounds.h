// A device without sound, on which what was asked for is noted.
#pragma once

#include <QString>

#include <vector>

#include "platform/SoundPlayer.h"

namespace quill::driver {

struct SoundRequest {
  enum class Kind { Play, Stop } What;
  QString Path = {};  // of what shall be played

  bool operator==(const SoundRequest&) const = default;
};

// A sound goes on until it is stopped: whether and when one would end by itself is up to the
// desktop, and a script is to run alike on each.
class SilentSounds : public SoundPlayer {
 public:
  void Play(const QString& path) override {
    m_requests.push_back({SoundRequest::Kind::Play, path});
  }
  void Stop() override { m_requests.push_back({SoundRequest::Kind::Stop}); }

  // All so far, in their order.
  const std::vector<SoundRequest>& Requests() const { return m_requests; }

 private:
  std::vector<SoundRequest> m_requests;
};

}  // namespace quill::driver
