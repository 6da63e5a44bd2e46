// A walk through every window of the program (every-window.walk), in a home of its own with long
// and Korean names.
#pragma once

#include <QTemporaryDir>

#include <functional>

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

}  // namespace quill::test
