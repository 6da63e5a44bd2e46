#include "app/StoreOpening.h"

namespace quill {

StoreOpening::StoreOpening(StoreProvider& store) : m_store(store) {
  int code = store.Create();
  if (code == 0) code = store.Logon();
  if (code == 0) code = store.OpenFolder(FolderKind::Contacts);
  if (code == 0) code = store.OpenFolder(FolderKind::Calendar);
  if (code == 0) return;
  const QString reason = store.LastError();
  m_problem =
      reason.isEmpty() ? QStringLiteral("the store cannot be opened (code %1)").arg(code) : reason;
}

StoreOpening::~StoreOpening() { m_store.Close(); }

}  // namespace quill
