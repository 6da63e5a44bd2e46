#include "driver/FaultyFiles.h"

namespace quill::driver {

int FaultyFiles::CreateFolder(const QString& path) {
  const int code = m_faults.CodeOf(u"memo-folder");
  return code != 0 ? code : m_inner.CreateFolder(path);
}

bool FaultyFiles::WriteWhole(const QString& path, const QByteArray& content) {
  return m_faults.CodeOf(u"memo-create") == 0 && m_inner.WriteWhole(path, content);
}

}  // namespace quill::driver
