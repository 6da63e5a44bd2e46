// Whatever bytes lie in the settings' file: reading them ends, what is read is written and read
// again as it was, and the settings that are made of it stay within their bounds.
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"
#include "infrared/InfraredSettings.h"
#include "platform/JsonRegistry.h"
#include "platform/Services.h"
#include "settings/Settings.h"

namespace quill::test {
namespace {

void Demand(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

bool SameValues(const RegistryKey& a, const RegistryKey& b) {
  return std::ranges::equal(a.Values, b.Values, [](const auto& one, const auto& other) {
    return one.first == other.first && one.second.Spelling == other.second.Spelling &&
           one.second.Content == other.second.Content;
  });
}

bool SameKeys(const RegistryKeys& a, const RegistryKeys& b) {
  return std::ranges::equal(a, b, [](const auto& one, const auto& other) {
    return one.first == other.first && one.second.Spelling == other.second.Spelling &&
           SameValues(one.second, other.second);
  });
}

// What the program makes of such a file.
void LookAtSettings(const QByteArray& bytes) {
  static const QTemporaryDir& folder = *new QTemporaryDir;
  const QString name = folder.filePath(QStringLiteral("settings.json"));
  QFile file(name);
  Demand(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "a file is there");
  file.close();
  JsonRegistry registry(name);
  file.remove();
  const InfraredSettings infrared = ReadInfraredSettings(registry);
  Demand(infrared.TrustedPeers.join(u',').size() <= 32'768, "trusted peers are limited");
  if (registry.Create(kSettingsKey.toString()) != RegistryKeyState::Opened) return;
  g_services.Registry = &registry;
  Settings settings;
  LoadSettings(settings);
  g_services.Registry = nullptr;
  Demand(settings.AreaCodeValue.size() <= 3, "an area code is short");
}

void LookAt(const QByteArray& bytes) {
  const auto keys = RegistryFromJson(bytes);
  if (!keys) return;
  const auto again = RegistryFromJson(JsonFromRegistry(*keys));
  Demand(again && SameKeys(*keys, *again), "what is written is what was read");
  // A key that is missing would be made, and the file with it.
  if (keys->contains(RegistryFold(kSettingsKey.toString()))) LookAtSettings(bytes);
}

}  // namespace

const char* const kFuzzSuffix = ".json";

std::vector<QByteArray> FuzzWords() {
  return {R"("\\Software\\Fennick\\Quill")",
          R"("\\Software\\Fennick\\Quill\\Infrared")",
          R"("ABC":1)",
          R"("Name")",
          R"("AreaCode":)",
          R"("AreaCodeValue":{"text":"02","bytes":5})",
          R"("TrustedPeers":)",
          R"({"text":")",
          R"("bytes":)",
          R"({"base64":"AAA="})",
          R"("Port":65536)",
          "4294967295",
          "-1",
          "1e308",
          "null",
          "[",
          "{",
          "}",
          ",",
          "\"",
          "\\u0000",
          "\\ud800",
          "\xEF\xBB\xBF",
          "\xC4\xB0"};
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quill::test::LookAt({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
  return 0;
}
