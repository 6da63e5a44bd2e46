#include "list/ui/MemoCommands.h"

#include "list/Selection.h"
#include "list/ui/ContactsView.h"
#include "memo/MemoDeletion.h"
#include "memo/MemoFiles.h"
#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "memo/MemoNames.h"
#include "memo/ui/MemoOpening.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "settings/ui/NameEntryDlg.h"

namespace quill {

namespace {

int CurrentPosition() { return g_list.Top + g_list.CurrentRow; }

std::optional<QString> CurrentMemo() {
  const bool hasRow = g_list.Mode == ViewMode::ByMemo && g_list.CurrentRow >= 0 &&
                      IsKeySelected(g_list, KeyOfRow(g_list, g_list.CurrentRow));
  return hasRow ? MemoAt(g_memo, CurrentPosition()) : std::nullopt;
}

void DeleteMemoAtRow(CContactsView& view) {
  const auto name = CurrentMemo();
  if (!name || !ConfirmMemoDeletion()) return;
  DeleteMemo(g_memo, *name);
  view.RebuildInPlace(g_list.CurrentRow);
}

// One that was renamed stays selected: the list finds it again by its name.
void FollowMemo(const QString& name, const QString& path) {
  const auto position = g_memo.NameList.indexOf(name);
  if (position >= 0 && !g_services.Files->Exists(MemoPath(g_memo, name)))
    g_memo.NameList.replace(position, path.section(u'\\', -1));
}

// Asks for a path and gives it to the action, together with the memo's own.
void AskForPath(CContactsView& view, NameEntryMode mode, QString (*preset)(const QString& path),
                void (*action)(const QString& from, const QString& to)) {
  const auto name = CurrentMemo();
  if (!name) return;
  const QString path = MemoPath(g_memo, *name);
  const auto entered = AskForName(*ScreenAround(&view), mode, preset(path));
  if (!entered) return;
  action(path, *entered);
  FollowMemo(*name, *entered);
  view.Rebuild();
}

QString SamePath(const QString& path) { return path; }

void RenameMemoAtRow(CContactsView& view) {
  AskForPath(view, NameEntryMode::Rename, SamePath, MoveMemo);
}

void CopyMemoAtRow(CContactsView& view) {
  AskForPath(view, NameEntryMode::Copy, MemoCopyPath, CopyMemo);
}

}  // namespace

std::unique_ptr<CommandTarget> MakeMemoCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ID_RENAME_MEMO, ID_RENAME_MEMO, [&view](int) { RenameMemoAtRow(view); }},
      {ID_COPY_MEMO, ID_COPY_MEMO, [&view](int) { CopyMemoAtRow(view); }},
      {ID_DELETE_MEMO, ID_DELETE_MEMO, [&view](int) { DeleteMemoAtRow(view); }},
  });
}

void DeleteSelectedMemos(CContactsView& view) {
  if (!CurrentMemo() || !ConfirmMemoDeletion()) return;
  DeleteMemos(g_memo, CurrentPosition(), static_cast<qsizetype>(g_list.SelectedKeys.size()));
  ClearSelectedKeys(g_list);
  view.RebuildInPlace(g_list.CurrentRow);
}

void DeleteListedMemos(CContactsView& view) {
  if (g_memo.NameList.isEmpty() ||
      !ConfirmDeletion(QStringLiteral("All memos in the list will be deleted. Continue?"))) {
    return;
  }
  DeleteMemos(g_memo, 0, g_memo.NameList.size());
  g_list.Top = 0;
  view.Rebuild();
}

void MakeNewMemo(CContactsView& view) {
  const int result = WriteNewMemo(*ScreenAround(&view), NewUnnamedMemoPath(g_memo));
  if (result == kResultOK && !g_memo.Buffer.isEmpty()) view.Rebuild();
}

void OpenMemo(CContactsView& view) {
  const auto name = CurrentMemo();
  if (!name) return;
  EditMemoFile(*ScreenAround(&view), MemoPath(g_memo, *name));
  view.Rebuild();
}

void OpenMemoFiles(CContactsView& view, const QStringList& paths) {
  for (const QString& path : paths) EditMemoFile(*ScreenAround(&view), path);
  if (g_list.Mode == ViewMode::ByMemo) view.Rebuild();
}

}  // namespace quill
