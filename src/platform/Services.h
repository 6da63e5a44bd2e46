// The device as the program sees it. Implementations are installed from outside (the program, the
// driver, the tests) and owned there; a pointer is null before they are.
#pragma once

namespace quill {

class Clock;
class DeviceFiles;
class InfraredFolder;
class InputPanel;
class Prompt;
class RecoveryFiles;
class RegistryStore;
class SoundPlayer;
class Timers;

struct Services {
  quill::Clock* Clock = nullptr;
  quill::Timers* Timers = nullptr;
  RegistryStore* Registry = nullptr;
  DeviceFiles* Files = nullptr;
  RecoveryFiles* Recovery = nullptr;
  quill::InputPanel* InputPanel = nullptr;
  SoundPlayer* Sounds = nullptr;
  InfraredFolder* Infrared = nullptr;
  quill::Prompt* Prompt = nullptr;
};

extern Services g_services;

}  // namespace quill
