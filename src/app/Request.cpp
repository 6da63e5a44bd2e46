#include "app/Request.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace quill {
namespace {

constexpr QLatin1String kRequestKey("request");
constexpr QLatin1String kTextKey("text");
constexpr QLatin1String kFilesKey("files");

struct KindRow {
  RequestKind Kind;
  QLatin1String Word;
  QLatin1String Argument;  // the one further key; empty: none
};
constexpr std::array<KindRow, 4> kKinds = {{
    {RequestKind::Show, QLatin1String("show"), kTextKey},
    {RequestKind::New, QLatin1String("new"), kTextKey},
    {RequestKind::Open, QLatin1String("open"), kFilesKey},
    {RequestKind::Activate, QLatin1String("activate"), QLatin1String()},
}};

const KindRow& RowOf(RequestKind kind) {
  return *std::find_if(kKinds.begin(), kKinds.end(),
                       [kind](const KindRow& row) { return row.Kind == kind; });
}

const KindRow* RowOf(const QString& word) {
  const auto row = std::find_if(kKinds.begin(), kKinds.end(),
                                [&word](const KindRow& each) { return each.Word == word; });
  return row == kKinds.end() ? nullptr : &*row;
}

// An empty list when the value is no array of strings.
QStringList ReadFiles(const QJsonValue& value) {
  QStringList files;
  for (const QJsonValue& file : value.toArray()) {
    if (!file.isString()) return {};
    files.append(file.toString());
  }
  return files;
}

QString KeyProblem(const QJsonObject& object, const KindRow& row) {
  for (const QString& key : object.keys()) {
    if (key != kRequestKey && (row.Argument.isEmpty() || key != row.Argument))
      return QStringLiteral("unexpected key \"%1\"").arg(key);
  }
  return {};
}

QByteArray OneLine(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

}  // namespace

QByteArray WriteRequest(const Request& request) {
  const KindRow& row = RowOf(request.Kind);
  QJsonObject object{{kRequestKey, QString(row.Word)}};
  if (row.Argument == kTextKey) object.insert(kTextKey, request.Text);
  if (row.Argument == kFilesKey)
    object.insert(kFilesKey, QJsonArray::fromStringList(request.Files));
  return OneLine(object);
}

std::optional<Request> ReadRequest(const QByteArray& line, QString& problem) {
  if (line.size() > kRequestLineLimit) {
    problem = QStringLiteral("request too long");
    return std::nullopt;
  }
  const QJsonDocument document = QJsonDocument::fromJson(line);
  if (!document.isObject()) {
    problem = QStringLiteral("not a JSON object");
    return std::nullopt;
  }
  const QJsonObject object = document.object();
  const KindRow* row = RowOf(object.value(kRequestKey).toString());
  if (!row) {
    problem = QStringLiteral("unknown request");
    return std::nullopt;
  }
  const Request request{row->Kind, object.value(kTextKey).toString(),
                        ReadFiles(object.value(kFilesKey))};
  problem = KeyProblem(object, *row);
  if (problem.isEmpty()) problem = RequestProblem(request);
  if (!problem.isEmpty()) return std::nullopt;
  return request;
}

QString RequestProblem(const Request& request) {
  const QLatin1String argument = RowOf(request.Kind).Argument;
  if (argument == kTextKey && request.Text.isEmpty()) return QStringLiteral("text missing");
  if (argument == kFilesKey && request.Files.isEmpty()) return QStringLiteral("files missing");
  for (const QString& file : request.Files) {
    if (!QDir::isAbsolutePath(file)) return QStringLiteral("\"%1\" is no absolute path").arg(file);
  }
  return {};
}

QByteArray WriteAnswer(const QString& error) {
  QJsonObject object{{QStringLiteral("ok"), error.isEmpty()}};
  if (!error.isEmpty()) object.insert(QStringLiteral("error"), error);
  return OneLine(object);
}

std::optional<bool> ReadAnswer(const QByteArray& line) {
  const QJsonValue ok = QJsonDocument::fromJson(line).object().value(QStringLiteral("ok"));
  if (!ok.isBool()) return std::nullopt;
  return ok.toBool();
}

}  // namespace quill
