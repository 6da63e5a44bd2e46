// The application object of one shell: windows, timers and prompt for one scale. The program behind
// it goes on when a change of scale ends the shell.
#pragma once

#include <memory>
#include <optional>

#include "app/Program.h"
#include "app/ShellSettings.h"
#include "platform/QtTimers.h"
#include "platform/ui/PalmGuard.h"

namespace quill {

class CContactsDoc;
class CMainFrame;
class COuterWindow;
class CScreen;
class RequestBus;
class RequestChannel;
class ScreenPrompt;
class ShellCommands;

// Asked for on the command line and taken as it is, remembered and to be fitted to the desktop
// once, or fitted already.
enum class ScaleOrigin { Asked, Remembered, Settled };

struct ShellStart {
  Scale At;
  ScaleOrigin Origin = ScaleOrigin::Settled;
};

// How a shell ended: with an exit code, or to be made again at another scale.
struct ShellEnd {
  int ExitCode = 0;
  std::optional<Scale> NextScale;
};

class CContactsApp {
 public:
  // Needs a QApplication made at this scale.
  CContactsApp(Program& program, const ShellStart& start);
  ~CContactsApp();

  // The start-up, the event loop, the end.
  ShellEnd Run();

  // What the shell's commands do. A change of scale ends the shell; it is refused (nullopt, nothing
  // happens) while a modal window is open or when there is no such scale.
  std::optional<Scale> LargerScale() const;
  std::optional<Scale> SmallerScale() const;
  bool IsFullScreen() const;
  bool MayChangeScale() const;
  void ChangeScale(Scale scale);
  void ToggleFullScreen();
  void ShowAbout();

 private:
  Scale FittedScale() const;
  void InitInstance();
  void ShowMainWindow();
  void Leave(const ShellEnd& end);
  void Listen();
  bool HandleRequest(const Request& request);

  Program& m_program;
  const ShellStart m_start;
  ShellSettings m_settings;
  ShellEnd m_end;
  QtTimers m_timers;
  PalmGuard m_palmGuard;
  std::unique_ptr<COuterWindow> m_outer;
  CScreen* m_screen;  // the outer window's child
  std::unique_ptr<ScreenPrompt> m_prompt;
  std::unique_ptr<ShellCommands> m_commands;
  std::unique_ptr<CContactsDoc> m_document;
  std::unique_ptr<CMainFrame> m_frame;
  std::unique_ptr<RequestChannel> m_channel;
  std::unique_ptr<RequestBus> m_bus;
};

}  // namespace quill
