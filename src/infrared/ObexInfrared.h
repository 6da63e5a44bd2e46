// The infrared folder of a desktop: contacts go to other devices, and come from them, as vCards
// pushed by OBEX, which is what infrared carried.
//
// Lives with the shell: it has sockets and timers. A send or receive that is going on ends with it.
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "infrared/InfraredSettings.h"
#include "infrared/ObexReceiving.h"
#include "infrared/ObexReception.h"
#include "infrared/ObexTransport.h"
#include "platform/Infrared.h"

namespace quill {

struct ReceiverQuestion {
  QString Last;  // what was chosen last, as it was typed; empty at first
  // Begins to look for receivers and calls with each that is found, until the answer.
  std::function<void(const ObexFound& found)> Find;
  // To be called exactly once; nothing: nobody is to get anything.
  std::function<void(const std::optional<ObexReceiver>& receiver)> Answer;
};

// Who asks the user to whom to send.
class ReceiverChooser {
 public:
  virtual ~ReceiverChooser() = default;
  // The answer may come before this returns or later.
  virtual void Choose(const ReceiverQuestion& question) = 0;
};

// What the folder works with; all outlive it.
struct InfraredParts {
  StoreProvider& Store;
  RegistryStore& Registry;
  quill::Timers& Timers;
  ReceiverChooser& Chooser;
  ReceiveConsent& Consent;
};

class ObexInfrared : public InfraredFolder {
 public:
  explicit ObexInfrared(const InfraredParts& parts);
  ~ObexInfrared() override;
  ObexInfrared(const ObexInfrared&) = delete;
  ObexInfrared& operator=(const ObexInfrared&) = delete;

  // Before anything is sent or received. TCP is there from the beginning.
  void AddTransport(std::unique_ptr<ObexTransport> transport);
  const InfraredSettings& Settings() const { return m_settings; }

  bool Open() override;
  bool AddItem(qint32 oid) override;
  bool Send() override;
  bool Receive() override;

  void StopReceiving() { m_receiving.Stop(); }
  bool IsReceiving() const { return m_receiving.IsOn(); }

  // Called when a receive begins or ends: whoever sits in front of the device has to see it.
  std::function<void()> ReceivingChanged;
  // Called after received cards have changed the store.
  std::function<void()> ContactsReceived;

 private:
  void AskForReceiver();
  void Find(const ObexFound& found);
  void SendTo(const std::optional<ObexReceiver>& receiver);
  void Sent(const std::vector<ObexOutcome>& outcomes);

  InfraredParts m_parts;
  InfraredSettings m_settings;
  ObexReception m_reception;
  ObexTransports m_transports;
  ObexReceiving m_receiving;
  std::vector<ObexSending> m_queue;
  std::vector<ObexSending> m_sending;  // until the receiver is chosen
  bool m_isSending = false;
  QObject m_context;  // of calls that come later: they do not come once it is gone
};

}  // namespace quill
