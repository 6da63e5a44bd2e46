// The program: everything that lives once per process, whatever the scale of its windows.
//
// It installs the device's services in g_services (clock, registry, files, recovery files, input
// panel, sounds) and owns them, the store provider and the instance lock. Timers and prompt belong
// to the shell, which is made anew for each scale; it also listens for requests when IsInstance.
#pragma once

#include <memory>
#include <optional>

#include "app/InstanceLock.h"
#include "app/Places.h"
#include "app/Request.h"
#include "platform/Scale.h"
#include "store/StoreProvider.h"

namespace quill {

struct ProgramOptions {
  Places Where;                          // its folders exist
  std::optional<Scale> AskedScale;       // from the command line: taken as it is
  std::unique_ptr<StoreProvider> Store;  // null: the embedded store at its place
  std::unique_ptr<InstanceLock> Lock;    // taken; null: not the process that requests go to
  std::optional<Request> FirstRequest;   // what the window shall do once it is there
  QString Problem = {};                  // why it cannot start: all that the window shows, then
};

class Program {
 public:
  explicit Program(ProgramOptions options);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  const Places& Where() const { return m_options.Where; }
  StoreProvider& Store() { return *m_options.Store; }
  const std::optional<Scale>& AskedScale() const { return m_options.AskedScale; }
  // Whether this is the process that other processes' requests go to.
  bool IsInstance() const { return m_options.Lock != nullptr; }

  // Empty unless the window is to tell this, as text for the user, and to end with kExitFailed.
  const QString& Problem() const { return m_options.Problem; }

  // True once, in the first shell: session, settings and first page are set up there only.
  bool TakeFirstStart();

  // Hands over the request that came with the command line, once. True when there was none or it
  // was done; a refused one is said on the log, and ExitCode knows of it.
  bool HandleFirstRequest(const RequestHandler& handler);
  // The process' exit code when its window ended with this one.
  int ExitCode(int windowCode) const;

 private:
  struct Services;
  ProgramOptions m_options;
  std::unique_ptr<Services> m_services;
  bool m_started = false;
  bool m_refused = false;
};

}  // namespace quill
