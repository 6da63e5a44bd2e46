// One line of the protocol: a request that is read, an answer that is written.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace quill::driver {

struct Request {
  QString Operation;
  QJsonObject Arguments;  // the whole object, "op" included
};

// Nothing unless the line is one JSON object with a text under "op".
std::optional<Request> ParseRequest(const QByteArray& line);

// Members stand beside "ok"; with an error there are none.
struct Answer {
  QString Error = {};  // empty: done
  QJsonObject Members = {};
};

inline constexpr QStringView kMalformed = u"malformed";
inline constexpr QStringView kUnknownOperation = u"unknown operation";
inline constexpr QStringView kUnknown = u"unknown";
inline constexpr QStringView kDisabled = u"disabled";
inline constexpr QStringView kHidden = u"hidden";
inline constexpr QStringView kBusy = u"busy";

Answer Done();
Answer Result(QStringView name, const QJsonValue& value);
Answer Refusal(QStringView error);

// One line, ended by a line feed; "ok" comes first.
QByteArray FormatAnswer(const Answer& answer);

}  // namespace quill::driver
