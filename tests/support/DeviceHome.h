// A home on disk whose files and registry are the device's for as long as it lives.
#pragma once

#include <QTemporaryDir>

#include "platform/DesktopDeviceFiles.h"
#include "platform/JsonRegistry.h"
#include "platform/Services.h"

namespace quill::test {

class DeviceHome {
 public:
  DeviceHome() {
    g_services.Files = &Files;
    g_services.Registry = &Registry;
  }
  ~DeviceHome() {
    g_services.Files = nullptr;
    g_services.Registry = nullptr;
  }
  DeviceHome(const DeviceHome&) = delete;
  DeviceHome& operator=(const DeviceHome&) = delete;

  QTemporaryDir Folder;
  DesktopDeviceFiles Files{
      {.Device = Folder.path(), .MyDocuments = Folder.filePath(QStringLiteral("My Documents"))}};
  JsonRegistry Registry{Folder.filePath(QStringLiteral("settings.json"))};
};

}  // namespace quill::test
