#include "app/ui/ShellCommands.h"

#include "app/ui/ContactsApp.h"
#include "app/ui/FileExchange.h"
#include "app/ui/ShellInfrared.h"
#include "resources/Ids.h"

namespace quill {

namespace {

using ScaleChoice = std::optional<Scale> (CContactsApp::*)() const;

CommandRow ScaleRow(int id, CContactsApp& application, ScaleChoice choose) {
  return {id, id,
          [&application, choose](int) {
            if (const auto scale = (application.*choose)()) application.ChangeScale(*scale);
          },
          [&application, choose](int, CommandState& state) {
            state.Enabled = application.MayChangeScale() && (application.*choose)().has_value();
          }};
}

using FileCommand = void (FileExchange::*)();

CommandRow FileRow(int id, CContactsApp& application, FileCommand run) {
  return {id, id, [&application, run](int) { (application.Files().*run)(); },
          [&application](int, CommandState& state) { state.Enabled = application.IsIdle(); }};
}

}  // namespace

ShellCommands::ShellCommands(CContactsApp& application)
    : CommandTarget({
          {ID_APP_ABOUT, ID_APP_ABOUT, [&application](int) { application.ShowAbout(); }, nullptr},
          FileRow(ID_SHELL_IMPORT, application, &FileExchange::Import),
          FileRow(ID_SHELL_EXPORT, application, &FileExchange::Export),
          ScaleRow(ID_SHELL_LARGER, application, &CContactsApp::LargerScale),
          ScaleRow(ID_SHELL_SMALLER, application, &CContactsApp::SmallerScale),
          {ID_SHELL_FULL_SCREEN, ID_SHELL_FULL_SCREEN,
           [&application](int) { application.ToggleFullScreen(); },
           [&application](int, CommandState& state) {
             state.Enabled = application.MayChangeScale();
             state.Checked = application.IsFullScreen();
           }},
          {ID_SHELL_STOP_RECEIVING, ID_SHELL_STOP_RECEIVING,
           [&application](int) { application.Infrared().StopReceiving(); },
           [&application](int, CommandState& state) {
             state.Enabled = application.Infrared().IsReceiving();
           }},
      }) {}

}  // namespace quill
