// What the shell remembers from one start to the next: its scale and whether it fills the screen.
#pragma once

#include <optional>

#include "platform/RegistryStore.h"
#include "platform/Scale.h"

namespace quill {

struct ShellSettings {
  Scale WindowScale;
  std::optional<bool> FullScreen;  // nothing: as the screen suggests

  bool operator==(const ShellSettings&) const = default;
};

// What is missing or makes no sense counts as its default.
ShellSettings ReadShellSettings(const RegistryStore& registry);

// False when a value could not be stored.
bool WriteShellSettings(RegistryStore& registry, const ShellSettings& settings);

}  // namespace quill
