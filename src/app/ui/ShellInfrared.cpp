#include "app/ui/ShellInfrared.h"

#include <utility>

#include "app/Program.h"
#include "infrared/ObexBluetoothTransport.h"
#include "platform/ChromeLayout.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

ShellInfrared::ShellInfrared(CScreen& screen, Program& program, Timers& timers)
    : m_screen(screen), m_timers(timers), m_picker(screen, timers), m_consent(screen, timers) {
  if (g_services.Infrared) return;
  m_folder.emplace(
      InfraredParts{program.Store(), *g_services.Registry, timers, m_picker, m_consent});
  m_folder->ReceivingChanged = [this] { ShowMarker(); };
  m_folder->ContactsReceived = [this] {
    if (ContactsReceived) ContactsReceived();
  };
  g_services.Infrared = &*m_folder;
}

ShellInfrared::~ShellInfrared() {
  if (m_folder) g_services.Infrared = nullptr;
}

void ShellInfrared::JoinBluetooth() {
  if (!m_folder) return;
  if (auto bluetooth = quill::JoinBluetooth(m_timers)) m_folder->AddTransport(std::move(bluetooth));
}

void ShellInfrared::StopReceiving() {
  if (!IsReceiving()) return;
  const PromptMessage question{.Text = QStringLiteral("Stop receiving contacts?"),
                               .Icon = PromptIcon::Question,
                               .Buttons = PromptButtons::YesNo};
  if (g_services.Prompt->Show(question) == PromptAnswer::Yes) m_folder->StopReceiving();
}

void ShellInfrared::ShowMarker() {
  if (!IsReceiving()) return m_screen.ShowNotice(std::nullopt);
  m_screen.ShowNotice(TitleNotice{.Text = QStringLiteral("Receiving"),
                                  .SpokenName = QStringLiteral("Receiving contacts. Stop"),
                                  .Command = ID_SHELL_STOP_RECEIVING});
}

}  // namespace quill
