#include "memo/MemoFolder.h"

#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

void FixMemoFolder(MemoState& memo) {
  const int code = g_services.Files->CreateFolder(memo.Folder);
  if (code != 0 && code != kDeviceAlreadyExists) memo.Folder = QStringLiteral("\\My Documents\\");
}

QString MemoPath(const MemoState& memo, const QString& name) { return memo.Folder + u'\\' + name; }

}  // namespace quill
