#include "app/MemoWatch.h"

#include <QFileInfo>

#include <utility>

namespace quill {

MemoWatch::MemoWatch(const QString& folder, std::function<void()> changed) : m_folder(folder) {
  QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher,
                   [this, changed = std::move(changed)] {
                     Follow();
                     changed();
                   });
  Follow();
}

// The folder is made, and made again under its name, in the one above it.
void MemoWatch::Follow() {
  const QStringList before = m_watcher.directories();
  if (!before.isEmpty()) m_watcher.removePaths(before);
  for (const QString& folder : {QFileInfo(m_folder).path(), m_folder})
    if (QFileInfo::exists(folder)) m_watcher.addPath(folder);
}

}  // namespace quill
