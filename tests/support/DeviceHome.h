// A home on disk whose files, recovery files and registry are the device's for as long as it lives.
#pragma once

#include <QTemporaryDir>

#include "platform/DesktopDeviceFiles.h"
#include "platform/DesktopRecoveryFiles.h"
#include "platform/JsonRegistry.h"
#include "platform/Services.h"

namespace quill::test {

class DeviceHome {
 public:
  DeviceHome() {
    g_services.Files = &Files;
    g_services.Registry = &Registry;
    g_services.Recovery = &Recovery;
  }
  ~DeviceHome() {
    g_services.Files = nullptr;
    g_services.Registry = nullptr;
    g_services.Recovery = nullptr;
  }
  DeviceHome(const DeviceHome&) = delete;
  DeviceHome& operator=(const DeviceHome&) = delete;

  QTemporaryDir Folder;
  DesktopDeviceFiles Files{
      {.Device = Folder.path(), .MyDocuments = Folder.filePath(QStringLiteral("My Documents"))}};
  DesktopRecoveryFiles Recovery{Folder.path()};
  JsonRegistry Registry{Folder.filePath(QStringLiteral("settings.json"))};
};

}  // namespace quill::test
