// A walk through every window of the program (every-window.walk), in a home of its own with long
// and Korean names.
#pragma once

#include <QTemporaryDir>

#include <functional>
#include <set>

#include "driver/DriverProcess.h"

namespace quill::test {

class WindowWalk {
 public:
  explicit WindowWalk(const QString& scale = QStringLiteral("1"));

  // At each place, with its name.
  using Look = std::function<void(ReadyDriver& driver, const QString& place)>;
  // Returns how many places there were. A step that is refused fails the test.
  int Go(const Look& look);

 private:
  void Write(const QString& name, const QByteArray& content) const;

  QTemporaryDir m_home;
  QString m_scale;
};

// Calls for a window of `accessible` and for each below it.
void ForEachInTree(const QJsonObject& tree, const std::function<void(const QJsonObject&)>& look);

// Whether a list of it, "state" or "actions", has this word.
bool Has(const QJsonObject& object, QStringView list, const QString& word);
// What can have the focus or be pressed.
bool IsReached(const QJsonObject& object);
// The roles that something which is reached may have.
const std::set<QString>& SpokenRoles();

// All that is reached below a window has a name and one of these roles.
void ExpectSpoken(const QJsonObject& tree);

}  // namespace quill::test
