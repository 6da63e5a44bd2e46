#include "infrared/ObexTcpTransport.h"

#include <utility>

namespace quill {

void ObexTcpTransport::Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
                            const ObexSent& sent) {
  m_sender.Send(receiver.Address, receiver.Port, std::move(cards), sent);
}

bool ObexTcpTransport::Listen(ObexHost& host) {
  const auto reach = m_settings.LocalNetwork ? ObexReach::LocalNetwork : ObexReach::ThisMachine;
  return m_inbox.Listen(reach, m_settings.Port, host);
}

}  // namespace quill
