#include "app/StoreSettings.h"

namespace quill {

PimStoreOptions ReadStoreSettings(const RegistryStore& registry) {
  PimStoreOptions options;
  const auto inkLimit = registry.QueryNumber(QStringLiteral("\\Software\\Fennick\\Quill\\Store"),
                                             QStringLiteral("AppointmentInkLimit"));
  if (inkLimit) options.AppointmentInkLimit = *inkLimit;
  return options;
}

}  // namespace quill
