// Decides about what peers offer, one offer after the other, and stores what is wanted.
//
// Lives with the shell, and longer than the transports that ask it.
#pragma once

#include <QObject>

#include <deque>
#include <functional>

#include "exchange/CardImport.h"
#include "infrared/InfraredSettings.h"
#include "infrared/ObexTransport.h"
#include "platform/RegistryStore.h"
#include "store/StoreProvider.h"

namespace quill {

enum class ConsentAnswer {
  Refused,
  Wanted,
  AlwaysWanted,  // from this peer
};

// Who asks the user.
class ReceiveConsent {
 public:
  virtual ~ReceiveConsent() = default;
  // One at a time. The answer is called exactly once, before this returns or later, also when the
  // question was taken back.
  virtual void Ask(const ObexOffer& offer,
                   const std::function<void(ConsentAnswer answer)>& answer) = 0;
  // The question has become pointless: close it.
  virtual void TakeBack() = 0;
};

class ObexReception : public QObject, public ObexHost {
 public:
  // All outlive this. The settings say which peers are trusted; new ones are added, and stored.
  ObexReception(StoreProvider& store, ReceiveConsent& consent, InfraredSettings& settings,
                RegistryStore& registry)
      : m_store(store), m_consent(consent), m_settings(settings), m_registry(registry) {}

  // From now on as many cards may come as one receive takes.
  void Begin() { m_room = kObexMostCards; }
  // Whether a peer waits for its answer.
  bool IsAsking() const { return m_asked || !m_waiting.empty(); }

  void Ask(ObexPusher& pusher) override;
  void TakeBack(ObexPusher& pusher) override;
  bool Store(const ObexObject& object) override;
  int Room() const override { return m_room; }

  // Called with what each stored object brought.
  std::function<void(const ObexObject& object, const ImportSummary& summary)> Stored;
  // Called when the last question is answered.
  std::function<void()> Answered;

 private:
  void AskLater();
  void AskNext();
  void Take(ConsentAnswer answer);
  void Trust(const QString& peer);

  StoreProvider& m_store;
  ReceiveConsent& m_consent;
  InfraredSettings& m_settings;
  RegistryStore& m_registry;
  std::deque<ObexPusher*> m_waiting;
  ObexPusher* m_asked = nullptr;  // null also while a question that was taken back is closed
  bool m_isOpen = false;          // a question is with the user
  int m_room = kObexMostCards;
};

}  // namespace quill
