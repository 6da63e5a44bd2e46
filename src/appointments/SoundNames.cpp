#include "appointments/SoundNames.h"

#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

QStringList SoundNames(const QStringList& extensions) {
  QStringList names;
  for (const QString& extension : extensions)
    names += g_services.Files->Find(QStringLiteral("\\Windows\\*.") + extension);
  names.sort(Qt::CaseInsensitive);
  return names;
}

}  // namespace quill
