#include "exchange/ObexTrial.h"

#include <QList>

#include <algorithm>

#include "exchange/ObexClient.h"
#include "exchange/ObexInbox.h"

namespace quill::test {
namespace {

constexpr ObexInboxLimits kLimits{.Packet = 1024, .Object = 2048, .Cards = 3};
constexpr qsizetype kOneObject = 400;

// What can be seen of a session from outside.
struct Trace {
  QByteArray Output;
  QList<QByteArray> Offered;
  std::vector<ObexOutcome> Outcomes;
  bool IsOver = false;

  bool operator==(const Trace&) const = default;
};

Trace OfInbox(const QByteArray& sent, qsizetype piece, ObexVerdict verdict) {
  ObexInbox inbox(kLimits);
  Trace trace;
  for (qsizetype at = 0; at < sent.size(); at += piece) {
    inbox.Take(QByteArrayView(sent).sliced(at, std::min(piece, sent.size() - at)));
    trace.Output += inbox.TakeOutput();
  }
  // Answered sooner, an offer could not be taken back by what comes behind it.
  while (inbox.Offered()) {
    trace.Offered += inbox.Offered()->Bytes;
    inbox.Answer(verdict);
  }
  trace.Output += inbox.TakeOutput();
  trace.IsOver = inbox.IsOver();
  return trace;
}

Trace OfClient(const QByteArray& sent, qsizetype piece) {
  ObexClient client({{QStringLiteral("a"), QByteArray(kOneObject, 'a')}, {{}, "b"}},
                    kLimits.Packet);
  client.Start();
  for (qsizetype at = 0; at < sent.size(); at += piece) {
    client.Take(QByteArrayView(sent).sliced(at, std::min(piece, sent.size() - at)));
  }
  return {client.TakeOutput(), {}, client.Outcomes(), client.IsOver()};
}

std::string InboxProblem(const QByteArray& sent, qsizetype piece, ObexVerdict verdict) {
  const Trace whole = OfInbox(sent, std::max<qsizetype>(sent.size(), 1), verdict);
  if (whole != OfInbox(sent, piece, verdict)) return "the inbox minds how the bytes are cut";
  if (whole.Output.size() > 2 * sent.size() + 3) return "the inbox answers too much";
  for (const QByteArray& object : whole.Offered) {
    if (object.size() > kLimits.Object) return "the inbox offers too much";
  }
  return {};
}

std::string ClientProblem(const QByteArray& sent, qsizetype piece) {
  const Trace whole = OfClient(sent, std::max<qsizetype>(sent.size(), 1));
  if (whole != OfClient(sent, piece)) return "the client minds how the bytes are cut";
  // Pieces of a packet, and the headers that go with each.
  if (whole.Output.size() > 4 * kOneObject) return "the client sends too much";
  return {};
}

std::string PacketProblem(const QByteArray& sent) {
  ObexPacketStream stream(kObexLongestLimit);
  stream.Add(sent);
  while (const auto bytes = stream.Next()) {
    const auto packet = ReadObexPacket(*bytes, 0);
    if (packet && WriteObexPacket(*packet) != *bytes) return "a packet is written differently";
  }
  return {};
}

}  // namespace

std::string ObexTrialProblem(const QByteArray& bytes) {
  if (bytes.size() < 2) return {};
  const auto choice = static_cast<uchar>(bytes.at(0));
  const qsizetype piece = std::max<qsizetype>(static_cast<uchar>(bytes.at(1)), 1);
  const QByteArray sent = bytes.sliced(2);
  const auto verdict = static_cast<ObexVerdict>((choice >> 1) % 3);
  const std::string problem =
      choice % 2 == 0 ? InboxProblem(sent, piece, verdict) : ClientProblem(sent, piece);
  return problem.empty() ? PacketProblem(sent) : problem;
}

}  // namespace quill::test
