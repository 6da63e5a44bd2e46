#include "platform/SessionBus.h"

#include <QFileInfo>

namespace quill {

bool SessionBusExists() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS");
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus"));
}

}  // namespace quill
