// What another process asks of the open window, and its form on the wire: one JSON object on one
// line of at most kRequestLineLimit bytes, {"request":"show","text":"..."}, answered by one line,
// {"ok":true} or {"ok":false,"error":"..."}.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace quill {

inline constexpr qsizetype kRequestLineLimit = 64 * 1024;  // bytes, the line feed included

enum class RequestKind {
  Show,      // show the contact that Text names
  New,       // begin a new contact with Text
  Open,      // bring in the contacts of Files, and open those that are memos
  Activate,  // come to the front
};

struct Request {
  RequestKind Kind = RequestKind::Activate;
  QString Text;       // Show and New only; never empty
  QStringList Files;  // Open only; absolute paths, at least one

  bool operator==(const Request&) const = default;
};

// Carries a request out and says whether it did. It answers at once: what waits for the user is
// begun after it has returned.
using RequestHandler = std::function<bool(const Request&)>;

// With the line feed. A request that ReadRequest would refuse must not be written.
QByteArray WriteRequest(const Request& request);

// Reads a line, with or without its line feed. Strict: a key that the kind does not have is refused
// like one that is missing. Nothing on failure, and why in problem.
std::optional<Request> ReadRequest(const QByteArray& line, QString& problem);

// What is wrong with a request; empty when nothing is.
QString RequestProblem(const Request& request);

QByteArray WriteAnswer(const QString& error);  // empty: it was done
// Whether the answer says that it was done; nothing when the line is no answer.
std::optional<bool> ReadAnswer(const QByteArray& line);

}  // namespace quill
