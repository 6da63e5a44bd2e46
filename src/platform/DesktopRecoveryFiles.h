// Recovery files on a desktop: in a folder that exists, their names behind kRecoveryPrefix.
#pragma once

#include "platform/RecoveryFiles.h"

namespace quill {

inline constexpr QStringView kRecoveryPrefix = u"recovery-";

class DesktopRecoveryFiles : public RecoveryFiles {
 public:
  explicit DesktopRecoveryFiles(const QString& folder) : m_folder(folder) {}

  std::optional<QByteArray> Read(const QString& name) const override;
  bool Write(const QString& name, const QByteArray& content) override;
  bool Append(const QString& name, const QByteArray& bytes) override;
  bool Remove(const QString& name) override;
  bool SetAside(const QString& name) override;

 private:
  QString FileOf(const QString& name) const;

  QString m_folder;
};

}  // namespace quill
