#include "infrared/ObexReception.h"

#include <QBuffer>
#include <QLocale>
#include <QLoggingCategory>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logReception, "quill.infrared")

}  // namespace

void ObexReception::Ask(ObexPusher& pusher) {
  const QString peer = pusher.Offer().Peer;
  if (!peer.isEmpty() && m_settings.TrustedPeers.contains(peer)) return pusher.Want();
  m_waiting.push_back(&pusher);
  AskLater();
}

void ObexReception::TakeBack(ObexPusher& pusher) {
  std::erase(m_waiting, &pusher);
  if (m_asked != &pusher) return;
  m_asked = nullptr;
  m_consent.TakeBack();
}

// A question may run an event loop of its own, and the peer is in the middle of its packet.
void ObexReception::AskLater() {
  QMetaObject::invokeMethod(
      this, [this] { AskNext(); }, Qt::QueuedConnection);
}

void ObexReception::AskNext() {
  if (m_isOpen || m_waiting.empty()) return;
  m_asked = m_waiting.front();
  m_waiting.pop_front();
  m_isOpen = true;
  const ObexOffer offer = m_asked->Offer();
  m_consent.Ask(offer, [self = QPointer(this)](ConsentAnswer answer) {
    if (self) self->Take(answer);
  });
}

void ObexReception::Take(ConsentAnswer answer) {
  m_isOpen = false;
  if (ObexPusher* pusher = std::exchange(m_asked, nullptr)) {
    if (answer == ConsentAnswer::AlwaysWanted) Trust(pusher->Offer().Peer);
    answer == ConsentAnswer::Refused ? pusher->Refuse() : pusher->Want();
  }
  AskLater();
  if (!IsAsking() && Answered) Answered();
}

void ObexReception::Trust(const QString& peer) {
  if (peer.isEmpty()) return;
  m_settings.TrustedPeers.append(peer);
  if (!TrustPeer(m_registry, peer)) qCWarning(logReception) << "cannot remember to trust" << peer;
}

bool ObexReception::Store(const ObexObject& object) {
  if (object.Cards > m_room || !m_store.Contacts()) return false;
  QBuffer file;
  file.setData(object.Bytes);
  file.open(QIODevice::ReadOnly);
  ImportOptions options;
  options.FallbackCharset = FallbackCharset(QLocale::system());
  const ImportSummary summary = ImportCards(file, m_store, options);
  if (summary.End != ImportEnd::WholeFile) {
    qCWarning(logReception) << "cannot store what was received:" << summary.Reason;
    return false;
  }
  if (summary.Unreadable > 0) {
    qCWarning(logReception) << summary.Unreadable << "received cards cannot be read";
  }
  if (summary.New + summary.Changed + summary.Same == 0) return false;
  m_room -= object.Cards;
  if (Stored) Stored(object, summary);
  return true;
}

}  // namespace quill
