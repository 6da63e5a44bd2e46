#include "appointments/SoundNames.h"

#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

QString SoundPath(const QString& name) { return kSoundFolder.toString() + u'\\' + name; }

QStringList SoundNames(const QStringList& extensions) {
  QStringList names;
  for (const QString& extension : extensions)
    names += g_services.Files->Find(SoundPath(QStringLiteral("*.") + extension));
  names.sort(Qt::CaseInsensitive);  // a desktop's folder has no order that a person knows
  return names;
}

}  // namespace quill
