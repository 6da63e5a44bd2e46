#include "app/StoreOpening.h"

#include "store/StoreLog.h"

namespace quill {

StoreOpening::StoreOpening(StoreProvider& store, const QString& file) : m_store(store) {
  const QuietStoreLog quiet;
  int code = store.Create();
  if (code == 0) code = store.Logon();
  if (code == 0) code = store.OpenFolder(FolderKind::Contacts);
  if (code == 0) code = store.OpenFolder(FolderKind::Calendar);
  if (code == 0) return;
  const QString reason = store.LastError();
  m_problem =
      reason.isEmpty() ? QStringLiteral("the store cannot be opened (code %1)").arg(code) : reason;
  if (!file.isEmpty()) m_problem = QStringLiteral("%1: %2").arg(file, m_problem);
}

StoreOpening::~StoreOpening() { m_store.Close(); }

}  // namespace quill
