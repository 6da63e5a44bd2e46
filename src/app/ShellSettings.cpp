#include "app/ShellSettings.h"

namespace quill {
namespace {

constexpr quint32 kHundredthsPerQuarter = 25;

QString ShellKey() { return QStringLiteral("\\Software\\Fennick\\Quill\\Shell"); }
QString ScaleName() { return QStringLiteral("Scale"); }
QString FullScreenName() { return QStringLiteral("FullScreen"); }

std::optional<Scale> ScaleOfHundredths(quint32 hundredths) {
  if (hundredths % kHundredthsPerQuarter != 0) return std::nullopt;
  const quint32 quarters = hundredths / kHundredthsPerQuarter;
  if (quarters < static_cast<quint32>(kSmallestScale.Quarters)) return std::nullopt;
  if (quarters > static_cast<quint32>(kLargestScale.Quarters)) return std::nullopt;
  return Scale{static_cast<int>(quarters)};
}

}  // namespace

ShellSettings ReadShellSettings(const RegistryStore& registry) {
  ShellSettings settings;
  const auto hundredths = registry.QueryNumber(ShellKey(), ScaleName());
  if (hundredths) settings.WindowScale = ScaleOfHundredths(*hundredths).value_or(Scale());
  const auto fullScreen = registry.QueryNumber(ShellKey(), FullScreenName());
  if (fullScreen && *fullScreen <= 1) settings.FullScreen = *fullScreen == 1;
  return settings;
}

bool WriteShellSettings(RegistryStore& registry, const ShellSettings& settings) {
  const auto quarters = static_cast<quint32>(settings.WindowScale.Quarters);
  std::vector<RegistryEntry> values = {{ScaleName(), quarters * kHundredthsPerQuarter}};
  if (settings.FullScreen) values.push_back({FullScreenName(), *settings.FullScreen ? 1U : 0U});
  return registry.Put(ShellKey(), values);
}

}  // namespace quill
