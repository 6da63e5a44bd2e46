#include "driver/ClassName.h"

#include <QMetaObject>
#include <QObject>

namespace quill::driver {

QString ClassName(const QObject& object) {
  const QString full = QString::fromLatin1(object.metaObject()->className());
  const QString name = full.sliced(full.lastIndexOf(u':') + 1);
  const bool prefixed = name.size() > 1 && name[0] == u'C' && name[1].isUpper();
  return prefixed ? name.sliced(1) : name;
}

}  // namespace quill::driver
