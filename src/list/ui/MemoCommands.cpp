#include "list/ui/MemoCommands.h"

#include "list/Selection.h"
#include "list/ui/ContactsView.h"
#include "memo/MemoFiles.h"
#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "memo/MemoNames.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "settings/ui/NameEntryDlg.h"

namespace quill {

namespace {

int CurrentPosition() { return g_list.Top + g_list.CurrentRow; }

std::optional<QString> CurrentMemo() {
  const bool hasRow = g_list.Mode == ViewMode::ByMemo && g_list.CurrentRow >= 0;
  return hasRow ? MemoAt(g_memo, CurrentPosition()) : std::nullopt;
}

bool IsConfirmed(const QString& question) {
  return g_services.Prompt->Show(
             {.Text = question, .Icon = PromptIcon::Question, .Buttons = PromptButtons::YesNo}) ==
         PromptAnswer::Yes;
}

bool IsDeletionConfirmed() {
  return IsConfirmed(QStringLiteral("This memo will be deleted. Continue?"));
}

void DeleteMemoAtRow(CContactsView& view) {
  const auto name = CurrentMemo();
  if (!name || !IsDeletionConfirmed()) return;
  DeleteMemo(g_memo, *name);
  view.Rebuild();
}

// Asks for a path and gives it to the action, together with the memo's own.
void AskForPath(CContactsView& view, NameEntryMode mode, QString (*preset)(const QString& path),
                void (*action)(const QString& from, const QString& to)) {
  const auto name = CurrentMemo();
  if (!name) return;
  const QString path = MemoPath(g_memo, *name);
  CNameEntryDlg dialog(*ScreenAround(&view), mode, preset(path));
  if (dialog.DoModal() != kResultOK) return;
  action(path, dialog.Text());
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
  if (!CurrentMemo() || !IsDeletionConfirmed()) return;
  DeleteMemos(g_memo, CurrentPosition(), static_cast<qsizetype>(g_list.SelectedKeys.size()));
  ClearSelectedKeys(g_list);
  view.Rebuild();
}

void DeleteListedMemos(CContactsView& view) {
  if (g_memo.NameList.isEmpty() ||
      !IsConfirmed(QStringLiteral("All memos in the list will be deleted. Continue?"))) {
    return;
  }
  DeleteMemos(g_memo, 0, g_memo.NameList.size());
  g_list.Top = 0;
  view.Rebuild();
}

void MakeNewMemo(CContactsView&) {
  g_services.Prompt->Show({.Text = QStringLiteral("Memos cannot be written yet.")});
}

void OpenMemo(CContactsView& view) {
  if (!CurrentMemo()) return;
  g_services.Prompt->Show({.Text = QStringLiteral("Memos cannot be opened yet.")});
  view.Rebuild();
}

}  // namespace quill
