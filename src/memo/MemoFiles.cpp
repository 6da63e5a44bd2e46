#include "memo/MemoFiles.h"

#include "memo/MemoFolder.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

namespace {

bool IsInFolder(const MemoState& memo, const QString& path) {
  return path.startsWith(MemoPath(memo, {}), Qt::CaseInsensitive);
}

}  // namespace

bool WriteMemo(const MemoState& memo, const QString& path, const QByteArray& content) {
  DeviceFiles& files = *g_services.Files;
  // A failure shows when the file is written.
  if (IsInFolder(memo, path) && !files.Exists(memo.Folder)) files.CreateFolder(memo.Folder);
  return files.WriteWhole(path, content);
}

MemoFate FateOfMemo(const QString& path, const QByteArray& read) {
  const DeviceFiles& files = *g_services.Files;
  if (!files.Exists(path)) return MemoFate::Removed;
  return files.ReadWhole(path) == read ? MemoFate::AsRead : MemoFate::Changed;
}

// The device files' answers are ignored: they have said on the log what they could not do.

void DeleteMemo(const MemoState& memo, const QString& name) {
  if (!name.isEmpty()) g_services.Files->Remove(MemoPath(memo, name));
}

void DeleteMemos(const MemoState& memo, qsizetype first, qsizetype count) {
  for (const QString& name : memo.NameList.mid(first, count)) DeleteMemo(memo, name);
}

void MoveMemo(const QString& from, const QString& to) { g_services.Files->Move(from, to); }

void CopyMemo(const QString& from, const QString& to) { g_services.Files->Copy(from, to); }

}  // namespace quill
