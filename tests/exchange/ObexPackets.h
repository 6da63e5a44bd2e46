// Packets of a pushing peer, as short expressions, and what is read of the answers.
#pragma once

#include <QByteArray>
#include <QString>

#include "exchange/ObexPacket.h"

namespace quill::test {

// A card of exactly so many bytes (200 or more).
QByteArray ObexCard(qsizetype size);

QByteArray Request(ObexRequest request, const std::vector<ObexHeader>& headers = {});
QByteArray ConnectRequest(quint16 longestPacket = kObexLongestLimit,
                          const std::vector<ObexHeader>& headers = {});
ObexHeader Name(const QString& name);
ObexHeader Body(const QByteArray& bytes);
ObexHeader EndOfBody(const QByteArray& bytes);

QByteArray Response(ObexResponse response, const std::vector<ObexHeader>& headers = {});
QByteArray ConnectResponse(quint16 longestPacket, const std::vector<ObexHeader>& headers = {});

// The codes of whole packets, as "a0 90 a0"; what is no packet is shown as "?".
std::string CodesOf(const QByteArray& packets);

}  // namespace quill::test
