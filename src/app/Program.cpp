#include "app/Program.h"

#include <QLoggingCategory>

#include <utility>

#include "app/Console.h"
#include "app/StoreSettings.h"
#include "platform/Clock.h"
#include "platform/DesktopDeviceFiles.h"
#include "platform/DesktopInputPanel.h"
#include "platform/DesktopRecoveryFiles.h"
#include "platform/DesktopSoundPlayer.h"
#include "platform/JsonRegistry.h"
#include "platform/Services.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logProgram, "quill.program")

}  // namespace

struct Program::Services {
  explicit Services(const Places& places)
      : Registry(places.SettingsFile), Files(DeviceRootsOf(places)), Recovery(places.StateFolder) {}

  SystemClock Clock;
  JsonRegistry Registry;
  DesktopDeviceFiles Files;
  DesktopRecoveryFiles Recovery;
  DesktopInputPanel InputPanel;
  DesktopSoundPlayer Sounds{Files};
};

Program::Program(ProgramOptions options)
    : m_options(std::move(options)), m_services(std::make_unique<Services>(m_options.Where)) {
  if (!m_options.Store) {
    m_options.Store = std::make_unique<PimStore>(m_options.Where.StoreFile,
                                                 ReadStoreSettings(m_services->Registry));
  }
  g_services.Clock = &m_services->Clock;
  g_services.Registry = &m_services->Registry;
  g_services.Files = &m_services->Files;
  g_services.Recovery = &m_services->Recovery;
  g_services.InputPanel = &m_services->InputPanel;
  g_services.Sounds = &m_services->Sounds;
}

Program::~Program() {
  g_services.Clock = nullptr;
  g_services.Registry = nullptr;
  g_services.Files = nullptr;
  g_services.Recovery = nullptr;
  g_services.InputPanel = nullptr;
  g_services.Sounds = nullptr;
}

bool Program::TakeFirstStart() { return !std::exchange(m_started, true); }

bool Program::HandleFirstRequest(const RequestHandler& handler) {
  const auto request = std::exchange(m_options.FirstRequest, std::nullopt);
  if (!request || handler(*request)) return true;
  m_refused = true;
  qCWarning(logProgram) << "the window could not do what the command line asked for";
  return false;
}

int Program::ExitCode(int windowCode) const {
  if (!m_options.Problem.isEmpty()) return kExitFailed;
  return windowCode == 0 && m_refused ? kExitPartly : windowCode;
}

}  // namespace quill
