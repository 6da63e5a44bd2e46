// Beam and receive in one shell: the device's infrared folder with the windows in which it asks,
// and the marker that stands in the title bar while a receive is on.
#pragma once

#include <functional>
#include <optional>

#include "app/ui/InfraredQuestions.h"
#include "infrared/ObexInfrared.h"

namespace quill {

class CScreen;
class Program;

class ShellInfrared {
 public:
  // All outlive this. Makes and installs the folder, unless the device has one by then.
  ShellInfrared(CScreen& screen, Program& program, Timers& timers);
  // Takes the folder away again. A receive that is on ends.
  ~ShellInfrared();
  ShellInfrared(const ShellInfrared&) = delete;
  ShellInfrared& operator=(const ShellInfrared&) = delete;

  // Carries contacts by Bluetooth as well, where the desktop has it. Takes a moment.
  void JoinBluetooth();

  bool IsReceiving() const { return m_folder && m_folder->IsReceiving(); }
  // Asks first.
  void StopReceiving();

  // Called after received cards have changed the store.
  std::function<void()> ContactsReceived;

 private:
  void ShowMarker();

  CScreen& m_screen;
  Timers& m_timers;
  ReceiverPicker m_picker;
  ConsentQuestion m_consent;
  std::optional<ObexInfrared> m_folder;  // none where something else carries contacts
};

}  // namespace quill
