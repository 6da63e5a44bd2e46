// What the program holds of memos, process-wide: where they lie, the names in view, and the memo on
// its way to the ink editor.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quill {

struct MemoState {
  QString Folder = QStringLiteral("\\My Documents\\Fennick");  // a device path
  QStringList NameList;  // file names without folder, sorted without case
  QByteArray Buffer;     // the whole file; empty for a new memo
};
extern MemoState g_memo;

}  // namespace quill
