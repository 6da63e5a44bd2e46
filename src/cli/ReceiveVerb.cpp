#include "cli/ReceiveVerb.h"

#include <QEventLoop>
#include <QTimer>

#include <memory>
#include <optional>
#include <utility>

#include "app/ImportReport.h"
#include "app/StoreOpening.h"
#include "cli/TerminalConsent.h"
#include "infrared/InfraredSettings.h"
#include "infrared/ObexReceiving.h"
#include "infrared/ObexReception.h"
#include "infrared/ObexTcpTransport.h"
#include "infrared/PeerAddress.h"
#include "platform/JsonRegistry.h"
#include "platform/QtTimers.h"
#include "store/pim/PimStore.h"

#include <unistd.h>

namespace quill {
namespace {

// For the last peer to say goodbye.
constexpr auto kGoodbye = std::chrono::milliseconds(300);

struct ReceiveTask {
  InfraredSettings Settings;
  int Count = kObexMostCards;
};

// The number behind the option; nothing when it is none of these.
template <typename Number>
std::optional<Number> NumberOf(const VerbCall& call, QStringView option, Number least,
                               Number most) {
  bool isNumber = false;
  const int number = ValueOf(call, option).toInt(&isNumber);
  if (!isNumber || number < int{least} || number > int{most}) return std::nullopt;
  return static_cast<Number>(number);
}

// Returns what is wrong.
QString ReadTask(const VerbCall& call, ReceiveTask& task) {
  InfraredSettings& settings = task.Settings;
  // To be heard by the network is asked for each time, or kept once.
  settings.LocalNetwork =
      IsGiven(call, kLanOption) || (settings.LocalNetwork && !IsGiven(call, kSaveOption));
  if (IsGiven(call, kPortOption)) {
    const auto port = NumberOf<quint16>(call, kPortOption, 0, 65'535);
    if (!port) return QStringLiteral("%1 is no port").arg(ValueOf(call, kPortOption));
    settings.Port = *port;
  }
  if (IsGiven(call, kCountOption)) {
    const auto count = NumberOf<int>(call, kCountOption, 1, kObexMostCards);
    if (!count) return QStringLiteral("%1 goes from 1 to %2").arg(kCountOption).arg(kObexMostCards);
    task.Count = *count;
  }
  if (IsGiven(call, kTrustOption)) {
    const QString peer = PeerAddress(ValueOf(call, kTrustOption));
    if (peer.isEmpty())
      return QStringLiteral("\"%1\" is no address").arg(ValueOf(call, kTrustOption));
    if (!settings.TrustedPeers.contains(peer)) settings.TrustedPeers += peer;
  }
  return {};
}

class Receipt {
 public:
  Receipt(StoreProvider& store, RegistryStore& registry, ReceiveTask task, const Console& console)
      : m_task(std::move(task)),
        m_console(console),
        m_consent(console, STDIN_FILENO),
        m_reception(store, m_consent, m_task.Settings, registry),
        m_receiving(m_transports, m_reception, m_timers) {
    auto tcp = std::make_unique<ObexTcpTransport>(m_task.Settings, m_timers);
    m_tcp = tcp.get();
    m_transports.push_back(std::move(tcp));
  }

  int Run() {
    m_receiving.Changed = [this] {
      if (!m_receiving.IsOn()) m_loop.quit();
    };
    m_reception.Stored = [this](const ObexObject& object, const ImportSummary& summary) {
      Tell(object, summary);
    };
    if (!m_receiving.Begin())
      return Fail(m_console, QStringLiteral("cannot listen on port %1").arg(m_task.Settings.Port));
    TellWhere();
    m_loop.exec();
    return m_cards > 0 ? kExitDone : kExitPartly;
  }

 private:
  void TellWhere() {
    const QString where = m_task.Settings.LocalNetwork
                              ? QStringLiteral("this machine and its local network")
                              : QStringLiteral("this machine");
    m_console.Err << QStringLiteral("listening on port %1, for %2").arg(m_tcp->Port()).arg(where)
                  << Qt::endl;
  }

  void Tell(const ObexObject& object, const ImportSummary& summary) {
    m_console.Out << CountsLine(object.Person, summary) << Qt::endl;
    m_cards += object.Cards;
    if (m_cards >= m_task.Count) QTimer::singleShot(kGoodbye, &m_loop, &QEventLoop::quit);
  }

  ReceiveTask m_task;
  const Console& m_console;
  QtTimers m_timers;
  TerminalConsent m_consent;
  ObexReception m_reception;
  ObexTransports m_transports;
  ObexReceiving m_receiving;
  ObexTcpTransport* m_tcp = nullptr;  // one of the transports
  QEventLoop m_loop;
  int m_cards = 0;
};

}  // namespace

int RunReceive(const VerbCall& call, const Console& console) {
  JsonRegistry registry(call.Where.SettingsFile);
  ReceiveTask task{ReadInfraredSettings(registry)};
  const QString problem = ReadTask(call, task);
  if (!problem.isEmpty()) return Fail(console, problem);
  if (IsGiven(call, kSaveOption) && !WriteInfraredSettings(registry, task.Settings))
    return Fail(console, QStringLiteral("cannot keep the settings"));
  PimStore store(call.Where.StoreFile);
  const StoreOpening opening(store, call.Where.StoreFile);
  if (!opening.Succeeded()) return Fail(console, opening.Problem());
  return Receipt(store, registry, std::move(task), console).Run();
}

}  // namespace quill
