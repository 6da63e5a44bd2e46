// Opens the memo editor. Each returns what it ended with; g_memo.Buffer is emptied first.
#pragma once

class QString;

namespace quill {

class CScreen;

// The path is the one that the new memo is proposed.
int WriteNewMemo(CScreen& screen, const QString& path);
// A file that cannot be read is not opened, so that no empty page takes its place: the user is told
// and the answer is Cancel.
int EditMemoFile(CScreen& screen, const QString& path);

}  // namespace quill
