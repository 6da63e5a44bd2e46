#include "exchange/ObexPackets.h"

#include "exchange/ObexPacketStream.h"

namespace quill::test {

QByteArray ObexCard(qsizetype size) {
  const QByteArray begin = "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Abel;Ann\r\nTEL;CELL:010-0000-0001\r\n";
  const QByteArray line = "NOTE:" + QByteArray(68, 'n') + "\r\n";
  const QByteArray end = "\r\nEND:VCARD\r\n";
  QByteArray card = begin;
  while (card.size() + line.size() + end.size() < size) card += line;
  card += QByteArray(size - card.size() - end.size(), 'x');
  return card + end;
}

QByteArray Request(ObexRequest request, const std::vector<ObexHeader>& headers) {
  return WriteObexPacket({static_cast<quint8>(request), {}, headers});
}

QByteArray ConnectRequest(quint16 longestPacket, const std::vector<ObexHeader>& headers) {
  return WriteObexPacket(
      {static_cast<quint8>(ObexRequest::Connect), ObexConnectFields(longestPacket), headers});
}

ObexHeader Name(const QString& name) { return ObexText(ObexHeaderId::Name, name); }
ObexHeader Body(const QByteArray& bytes) { return ObexBytes(ObexHeaderId::Body, bytes); }
ObexHeader EndOfBody(const QByteArray& bytes) { return ObexBytes(ObexHeaderId::EndOfBody, bytes); }

QByteArray Response(ObexResponse response, const std::vector<ObexHeader>& headers) {
  return WriteObexPacket({static_cast<quint8>(response), {}, headers});
}

QByteArray ConnectResponse(quint16 longestPacket, const std::vector<ObexHeader>& headers) {
  return WriteObexPacket(
      {static_cast<quint8>(ObexResponse::Success), ObexConnectFields(longestPacket), headers});
}

std::string CodesOf(const QByteArray& packets) {
  ObexPacketStream stream(kObexLongestLimit);
  stream.Add(packets);
  QByteArray codes;
  while (const auto packet = stream.Next()) codes += packet->first(1);
  const QByteArray shown = codes.toHex(' ');
  return (stream.Waiting() > 0 ? shown + '?' : shown).toStdString();
}

}  // namespace quill::test
