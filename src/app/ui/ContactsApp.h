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
class FileExchange;
class MemoFollower;
class MemoWatch;
class CScreen;
class RequestBus;
class RequestChannel;
class ScreenPrompt;
class ShellCommands;
class ShellInfrared;

// Asked for on the command line and taken as it is, remembered and to be fitted to the desktop
// once, or fitted already.
enum class ScaleOrigin { Asked, Remembered, Settled };

struct ShellStart {
  Scale At;
  ScaleOrigin Origin = ScaleOrigin::Settled;
  ShellSettings Settings = {};  // as they are now, whether or not they could be stored
  std::optional<int> SearchCaret = std::nullopt;  // in the search box, when that has the keyboard
};

// How a shell ended: with an exit code, or to be made again.
struct ShellEnd {
  int ExitCode = 0;
  std::optional<ShellStart> Next = std::nullopt;
};

class CContactsApp {
 public:
  // Needs a QApplication made at this scale.
  CContactsApp(Program& program, const ShellStart& start);
  ~CContactsApp();

  // The start-up, the event loop, the end.
  ShellEnd Run();

  // Whether no other window and no popup is open.
  bool IsIdle() const;

  // What the shell's commands do. There may be no larger or smaller scale. A change ends the shell;
  // unless all is idle, the pen is up and no receive is on nothing happens.
  bool MayChangeScale() const;
  std::optional<Scale> LargerScale() const;
  std::optional<Scale> SmallerScale() const;
  bool IsFullScreen() const;
  void ChangeScale(Scale scale);
  void ToggleFullScreen();
  void ShowAbout();
  // Contacts in and out.
  FileExchange& Files() { return *m_files; }
  ShellInfrared& Infrared() { return *m_infrared; }

 private:
  Scale FittedScale() const;
  void InitInstance();
  void SetUp();
  void TellProblem();
  void RestoreFocus();
  void ShowMainWindow();
  bool MayLeave() const;
  void LeaveFor(Scale next);
  void Leave(const ShellEnd& end);
  void AcceptDrops();
  void FollowInfrared();
  void FollowMemos();
  void TakeLater(const QStringList& files);
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
  std::unique_ptr<FileExchange> m_files;
  std::unique_ptr<ShellInfrared> m_infrared;
  std::unique_ptr<ShellCommands> m_commands;
  std::unique_ptr<CContactsDoc> m_document;
  std::unique_ptr<CMainFrame> m_frame;
  std::unique_ptr<MemoFollower> m_memoFollower;
  std::unique_ptr<MemoWatch> m_memoWatch;
  std::unique_ptr<RequestChannel> m_channel;
  std::unique_ptr<RequestBus> m_bus;
};

}  // namespace quill
