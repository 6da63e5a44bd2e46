// The program: everything that lives once per process, whatever the scale of its windows.
//
// It installs the device's services in g_services (clock, registry, input panel) and owns them and
// the store provider. Timers and prompt belong to the shell, which is made anew for each scale.
#pragma once

#include <memory>
#include <optional>

#include "app/Places.h"
#include "platform/Scale.h"
#include "store/StoreProvider.h"

namespace quill {

struct ProgramOptions {
  Places Where;
  std::optional<Scale> AskedScale;  // from the command line: taken as it is
  std::unique_ptr<StoreProvider> Store;  // null: the embedded store at its place
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

  // True once, in the first shell: session, settings and first page are set up there only.
  bool TakeFirstStart();

 private:
  struct Services;
  ProgramOptions m_options;
  std::unique_ptr<Services> m_services;
  bool m_started = false;
};

}  // namespace quill
