#include "infrared/ObexInfrared.h"

#include <QLoggingCategory>
#include <QPointer>

#include <algorithm>
#include <utility>

#include "exchange/CardWriter.h"
#include "infrared/ObexTcpTransport.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logInfrared, "quill.infrared")

}  // namespace

ObexInfrared::ObexInfrared(const InfraredParts& parts)
    : m_parts(parts),
      m_settings(ReadInfraredSettings(parts.Registry)),
      m_reception(parts.Store, parts.Consent, m_settings, parts.Registry),
      m_receiving(m_transports, m_reception, parts.Timers) {
  AddTransport(std::make_unique<ObexTcpTransport>(m_settings, parts.Timers));
  m_receiving.Changed = [this] {
    if (ReceivingChanged) ReceivingChanged();
  };
  m_reception.Stored = [this](const ObexObject&, const ImportSummary& summary) {
    if (summary.New + summary.Changed > 0 && ContactsReceived) ContactsReceived();
  };
}

ObexInfrared::~ObexInfrared() {
  ReceivingChanged = nullptr;
  m_receiving.Stop();
}

void ObexInfrared::AddTransport(std::unique_ptr<ObexTransport> transport) {
  m_transports.push_back(std::move(transport));
}

bool ObexInfrared::Open() {
  m_queue.clear();
  return std::any_of(m_transports.begin(), m_transports.end(),
                     [](const auto& transport) { return transport->IsPresent(); });
}

bool ObexInfrared::AddItem(qint32 oid) {
  ContactItem item;
  ContactsFolder* contacts = m_parts.Store.Contacts();
  if (!contacts || !contacts->Read(oid, item)) return false;
  m_queue.push_back({item.Record[ContactField::FileAs] + QStringLiteral(".vcf"),
                     WriteCard(item, CardVersion::V21)});
  return true;
}

bool ObexInfrared::Send() {
  std::vector<ObexSending> cards = std::exchange(m_queue, {});
  if (cards.empty()) return true;  // nobody has to be chosen for nothing
  if (m_isSending) {
    qCWarning(logInfrared) << "not sent: something else is being sent";
    return false;
  }
  m_isSending = true;
  m_sending = std::move(cards);
  QMetaObject::invokeMethod(
      &m_context, [this] { AskForReceiver(); }, Qt::QueuedConnection);
  return true;
}

void ObexInfrared::AskForReceiver() {
  m_settings = ReadInfraredSettings(m_parts.Registry);
  const QPointer<QObject> context(&m_context);
  m_parts.Chooser.Choose({m_settings.LastReceiver,
                          [this, context](const ObexFound& found) {
                            if (context) Find(found);
                          },
                          [this, context](const std::optional<ObexReceiver>& receiver) {
                            if (context) SendTo(receiver);
                          }});
}

void ObexInfrared::Find(const ObexFound& found) {
  for (const auto& transport : m_transports) {
    if (transport->IsPresent()) transport->Find(found);
  }
}

void ObexInfrared::SendTo(const std::optional<ObexReceiver>& receiver) {
  for (const auto& transport : m_transports) transport->StopFinding();
  std::vector<ObexSending> cards = std::exchange(m_sending, {});
  const auto carrier =
      std::find_if(m_transports.begin(), m_transports.end(), [&receiver](const auto& transport) {
        return receiver && transport->IsPresent() && transport->Carrier() == receiver->Carrier;
      });
  if (carrier == m_transports.end()) {
    m_isSending = false;
    if (receiver) qCWarning(logInfrared) << "not sent: nothing leads to" << receiver->Address;
    return;
  }
  RememberReceiver(m_parts.Registry, ReceiverText(*receiver));  // if not, it is typed again
  (*carrier)->Send(*receiver, std::move(cards),
                   [this](const std::vector<ObexOutcome>& outcomes) { Sent(outcomes); });
}

void ObexInfrared::Sent(const std::vector<ObexOutcome>& outcomes) {
  m_isSending = false;
  const auto count = [&outcomes](ObexOutcome outcome) {
    return std::count(outcomes.begin(), outcomes.end(), outcome);
  };
  qCInfo(logInfrared) << "sent" << count(ObexOutcome::Done) << "refused"
                      << count(ObexOutcome::Refused) << "failed" << count(ObexOutcome::Broken);
}

bool ObexInfrared::Receive() {
  if (!m_receiving.IsOn()) m_settings = ReadInfraredSettings(m_parts.Registry);
  return m_receiving.Begin();
}

}  // namespace quill
