#include "driver/Request.h"

#include <QJsonDocument>

namespace quill::driver {

std::optional<Request> ParseRequest(const QByteArray& line) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(line, &error);
  if (error.error != QJsonParseError::NoError || !document.isObject()) return std::nullopt;
  const QJsonObject arguments = document.object();
  const QJsonValue operation = arguments.value(u"op");
  if (!operation.isString()) return std::nullopt;
  return Request{operation.toString(), arguments};
}

Answer Done() { return {}; }

Answer Result(QStringView name, const QJsonValue& value) {
  Answer answer;
  answer.Members.insert(name, value);
  return answer;
}

Answer Refusal(QStringView error) {
  Answer answer;
  answer.Error = error.toString();
  return answer;
}

QByteArray FormatAnswer(const Answer& answer) {
  QJsonObject members = answer.Members;
  if (!answer.Error.isEmpty()) members = {{QStringLiteral("error"), answer.Error}};
  // A JSON object sorts its keys, so "ok" is put in front by hand.
  QByteArray line = answer.Error.isEmpty() ? "{\"ok\":true" : "{\"ok\":false";
  const QByteArray rest = QJsonDocument(members).toJson(QJsonDocument::Compact).sliced(1);
  line.append(members.isEmpty() ? "" : ",").append(rest).append('\n');
  return line;
}

}  // namespace quill::driver
