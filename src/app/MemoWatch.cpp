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

// A folder that is not there is made in the one above it.
void MemoWatch::Follow() {
  const QString watched = QFileInfo::exists(m_folder) ? m_folder : QFileInfo(m_folder).path();
  const QStringList before = m_watcher.directories();
  if (before == QStringList(watched)) return;
  if (!before.isEmpty()) m_watcher.removePaths(before);
  if (QFileInfo::exists(watched)) m_watcher.addPath(watched);
}

}  // namespace quill
