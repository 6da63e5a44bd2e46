// What a push that comes in has on every carrier: its offer, and the host that decides about it.
#pragma once

#include <functional>

#include "infrared/ObexTransport.h"

namespace quill {

class ObexIncoming : public ObexPusher {
 public:
  const ObexOffer& Offer() const override { return m_offer; }

  // Called once when nothing more will come of it, maybe in the middle of another call: this may be
  // destroyed only later. Set before it begins.
  std::function<void()> Ended;

 protected:
  // The host outlives this.
  explicit ObexIncoming(ObexHost& host) : m_host(host) {}

  ObexHost& m_host;
  ObexOffer m_offer;
};

}  // namespace quill
