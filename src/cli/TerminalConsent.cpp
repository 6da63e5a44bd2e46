#include "cli/TerminalConsent.h"

#include <utility>

#include <unistd.h>

namespace quill {
namespace {

constexpr std::size_t kReadAtOnce = 256;
constexpr qsizetype kLongestLine = 4096;

QString Question(const ObexOffer& offer) {
  const QString peer = offer.PeerName.isEmpty() ? offer.Peer : offer.PeerName;
  const QString what = offer.Person.isEmpty() ? offer.Label : offer.Person;
  const QString more =
      offer.Cards > 1 ? QStringLiteral(" and %1 more").arg(offer.Cards - 1) : QString();
  return QStringLiteral("%1 pushes \"%2\"%3. Take it? (y)es, (n)o, (a)lways: ")
      .arg(peer, what, more);
}

ConsentAnswer AnswerOf(const QByteArray& line) {
  const QByteArray word = line.trimmed().toLower();
  if (word == "y" || word == "yes") return ConsentAnswer::Wanted;
  if (word == "a" || word == "always") return ConsentAnswer::AlwaysWanted;
  return ConsentAnswer::Refused;
}

}  // namespace

TerminalConsent::TerminalConsent(const Console& console, int input)
    : m_console(console), m_input(input), m_notifier(input, QSocketNotifier::Read) {
  m_notifier.setEnabled(false);
  QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { Read(); });
}

void TerminalConsent::Ask(const ObexOffer& offer,
                          const std::function<void(ConsentAnswer answer)>& answer) {
  m_answer = answer;
  m_console.Err << Question(offer) << Qt::flush;
  // What was typed before may hold the line.
  TakeLine();
  m_notifier.setEnabled(m_answer != nullptr);
}

void TerminalConsent::TakeBack() {
  if (!m_answer) return;
  m_console.Err << Qt::endl << "no longer pushed" << Qt::endl;
  Give(ConsentAnswer::Refused);
}

void TerminalConsent::Read() {
  char buffer[kReadAtOnce];
  const ssize_t count = ::read(m_input, buffer, sizeof buffer);
  if (count > 0) m_typed.append(buffer, count);
  TakeLine();
  const bool makesNoSense = count <= 0 || m_typed.size() > kLongestLine;
  if (!m_answer || !makesNoSense) return;
  m_typed.clear();
  Give(ConsentAnswer::Refused);
}

void TerminalConsent::TakeLine() {
  const qsizetype end = m_typed.indexOf('\n');
  if (end < 0) return;
  const QByteArray line = m_typed.first(end);
  m_typed.remove(0, end + 1);
  Give(AnswerOf(line));
}

void TerminalConsent::Give(ConsentAnswer answer) {
  m_notifier.setEnabled(false);
  if (const auto give = std::exchange(m_answer, nullptr)) give(answer);
}

}  // namespace quill
