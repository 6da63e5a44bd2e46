// Tells when files come to the memo folder, go from it or are renamed there, whoever does it. A
// folder that is removed is watched again once it is back.
#pragma once

#include <QFileSystemWatcher>

#include <functional>

namespace quill {

class MemoWatch {
 public:
  // folder: the desktop's path. changed is called from the event loop, often more than once for one
  // file. Where the folder cannot be watched nothing is told.
  MemoWatch(const QString& folder, std::function<void()> changed);
  MemoWatch(const MemoWatch&) = delete;
  MemoWatch& operator=(const MemoWatch&) = delete;

 private:
  void Follow();

  const QString m_folder;
  QFileSystemWatcher m_watcher;
};

}  // namespace quill
