#include "infrared/ObexBluetoothSender.h"

#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QFile>
#include <QLoggingCategory>

#include <utility>

#include "infrared/ObexBus.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logBluetooth, "quill.infrared")

constexpr int kCardTimer = 1;

QString Latin(const char* text) { return QString::fromLatin1(text); }

}  // namespace

struct ObexBluetoothSender::Job : QObject {
  std::vector<ObexSending> Cards;
  std::vector<ObexOutcome> Outcomes;
  ObexSent Sent;
  QTemporaryDir Folder;  // only this user may look into it
  QString Session;
  QString Transfer;
  std::size_t Current = 0;
};

ObexBluetoothSender::ObexBluetoothSender(const QDBusConnection& bus, Timers& timers)
    : m_bus(bus), m_timers(timers), m_watch(bus) {}

ObexBluetoothSender::~ObexBluetoothSender() { Leave(); }

void ObexBluetoothSender::Send(const QString& address, std::vector<ObexSending> cards,
                               const ObexSent& sent) {
  Drop();
  m_job = std::make_unique<Job>();
  m_job->Outcomes.assign(cards.size(), ObexOutcome::Broken);
  m_job->Cards = std::move(cards);
  m_job->Sent = sent;
  const QVariantMap kind{{QStringLiteral("Target"), QStringLiteral("opp")}};
  Ask({Latin(obexbus::kRoot),
       Latin(obexbus::kClient),
       QStringLiteral("CreateSession"),
       {address, kind}},
      &ObexBluetoothSender::SessionMade);
}

// What a job asked that was dropped meanwhile, is of no use to the next one.
void ObexBluetoothSender::Ask(const obexbus::Call& call,
                              void (ObexBluetoothSender::*reply)(const QDBusMessage&)) {
  obexbus::CallLater(m_bus, call, *m_job,
                     [this, reply, job = m_job.get()](const QDBusMessage& message) {
                       if (m_job.get() == job) (this->*reply)(message);
                     });
}

void ObexBluetoothSender::SessionMade(const QDBusMessage& reply) {
  m_job->Session = obexbus::PathOf(reply);
  if (!m_job->Session.isEmpty()) return Next();
  qCWarning(logBluetooth) << "no session:" << reply.errorName() << reply.errorMessage();
  Finish();
}

void ObexBluetoothSender::Next() {
  if (m_job->Current == m_job->Cards.size()) return Finish();
  // The device shows this name; the contact's own might mean something to a file system.
  QFile file(m_job->Folder.filePath(QStringLiteral("contact-%1.vcf").arg(m_job->Current + 1)));
  const QByteArray& card = m_job->Cards[m_job->Current].Card;
  const bool isWritten =
      file.open(QIODevice::WriteOnly) && file.write(card) == card.size() && file.flush();
  file.close();
  if (isWritten) return Push(file.fileName());
  qCWarning(logBluetooth) << "not sent:" << file.errorString();
  Finish();
}

void ObexBluetoothSender::Push(const QString& file) {
  m_timers.Set(*this, kCardTimer, kCardPatience);
  Ask({m_job->Session, Latin(obexbus::kPush), QStringLiteral("SendFile"), {file}},
      &ObexBluetoothSender::Pushed);
}

void ObexBluetoothSender::Pushed(const QDBusMessage& reply) {
  if (obexbus::IsError(reply)) return CardEnded(ObexOutcome::Refused);
  m_job->Transfer = obexbus::PathOf(reply);
  m_watch.WaitFor(m_job->Transfer, [this](bool isComplete) {
    m_job->Transfer.clear();
    CardEnded(isComplete ? ObexOutcome::Done : ObexOutcome::Broken);
  });
}

void ObexBluetoothSender::CardEnded(ObexOutcome outcome) {
  m_job->Outcomes[m_job->Current] = outcome;
  ++m_job->Current;
  Next();
}

void ObexBluetoothSender::OnTimer(int) { Finish(); }

void ObexBluetoothSender::Finish() {
  const std::vector<ObexOutcome> outcomes = m_job->Outcomes;
  const ObexSent sent = m_job->Sent;
  Drop();
  if (sent) sent(outcomes);
}

void ObexBluetoothSender::Drop() {
  Leave();
  if (!m_job) return;
  // It may be the context of the call that is going on; at the latest it goes with the sender.
  m_job->setParent(this);
  m_job.release()->deleteLater();
}

void ObexBluetoothSender::Leave() {
  m_timers.KillAll(*this);
  if (!m_job) return;
  m_watch.Forget(m_job->Transfer);
  if (!m_job->Session.isEmpty()) {
    QDBusMessage goodbye =
        QDBusMessage::createMethodCall(Latin(obexbus::kService), Latin(obexbus::kRoot),
                                       Latin(obexbus::kClient), QStringLiteral("RemoveSession"));
    goodbye << QVariant::fromValue(QDBusObjectPath(m_job->Session));
    m_bus.asyncCall(goodbye);  // whatever it answers, the session is no longer ours
  }
}

}  // namespace quill
