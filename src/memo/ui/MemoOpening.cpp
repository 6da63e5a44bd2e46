#include "memo/ui/MemoOpening.h"

#include "memo/MemoState.h"
#include "memo/ui/InkMemoDialog.h"
#include "platform/DeviceFiles.h"
#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

int WriteNewMemo(CScreen& screen, const QString& path) {
  g_memo.Buffer.clear();
  return CInkMemoDialog(screen, path, InkMemoKind::New).DoModal();
}

int EditMemoFile(CScreen& screen, const QString& path) {
  g_memo.Buffer.clear();
  const auto content = g_services.Files->ReadWhole(path);
  if (!content) {
    g_services.Prompt->Show({.Text = QStringLiteral("The memo could not be read.")});
    return kResultCancel;
  }
  g_memo.Buffer = *content;
  return CInkMemoDialog(screen, path, InkMemoKind::Existing).DoModal();
}

}  // namespace quill
