#include "settings/Settings.h"

#include <QLoggingCategory>
#include <QtEndian>

#include <algorithm>
#include <array>

#include "platform/RegistryStore.h"
#include "platform/Services.h"

namespace quill {

Settings g_settings;

namespace {

Q_LOGGING_CATEGORY(logSettings, "quill.settings")

QString Key() { return kSettingsKey.toString(); }

QByteArray AreaCodeBlock(const QString& areaCode) {
  QByteArray block(kAreaCodeBlockSize, '\0');
  const qsizetype units = std::min(areaCode.size(), block.size() / 2);
  qToLittleEndian<char16_t>(areaCode.constData(), units, block.data());
  return block;
}

// The text up to its terminator; the buffer has room for one that was stored without.
QString ReadAreaCode(const RegistryStore& registry) {
  std::array<char, kAreaCodeReadSize + 1> buffer{};
  const auto room = std::span(buffer).first(kAreaCodeReadSize);
  registry.QueryText(Key(), kAreaCodeValueName.toString(),
                     room);  // a block too long leaves it empty
  QString text(buffer.size() / 2, Qt::Uninitialized);
  qFromLittleEndian<char16_t>(buffer.data(), text.size(), text.data());
  return text.left(text.indexOf(QChar::Null));
}

void ReadNumber(const RegistryStore& registry, QStringView name, quint32& number) {
  number = registry.QueryNumber(Key(), name.toString()).value_or(number);
}

void ReadValues(const RegistryStore& registry, Settings& settings) {
  ReadNumber(registry, kAbcName, settings.Abc);
  ReadNumber(registry, kNameName, settings.Name);
  ReadNumber(registry, kAreaCodeName, settings.AreaCode);
  settings.AreaCodeValue = ReadAreaCode(registry);
}

// In one, so that nothing that happens meanwhile leaves a part of them.
void WriteValues(RegistryStore& registry, const Settings& settings) {
  const bool isWritten =
      registry.Put(Key(), {{kAbcName.toString(), settings.Abc},
                           {kNameName.toString(), settings.Name},
                           {kAreaCodeName.toString(), settings.AreaCode},
                           {kAreaCodeValueName.toString(), AreaCodeBlock(settings.AreaCodeValue)}});
  if (!isWritten) qCWarning(logSettings) << "the settings could not be stored";
}

QString PrefixOf(const QString& areaCode) {
  return areaCode.isEmpty() ? QString() : areaCode + u'-';
}

}  // namespace

void LoadSettings(Settings& settings) {
  settings = {};
  RegistryStore& registry = *g_services.Registry;
  switch (registry.Create(Key())) {
    case RegistryKeyState::Created:
      WriteValues(registry, settings);
      break;
    case RegistryKeyState::Opened:
      ReadValues(registry, settings);
      break;
    case RegistryKeyState::Failed:
      qCWarning(logSettings) << "the settings cannot be opened: the defaults count";
      break;
  }
  settings.AreaCodePrefix = PrefixOf(settings.AreaCodeValue);
}

void SaveSettings(Settings& settings) {
  WriteValues(*g_services.Registry, settings);
  settings.AreaCodePrefix = PrefixOf(settings.AreaCodeValue);
}

}  // namespace quill
