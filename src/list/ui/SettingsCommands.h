// The configuration command: asks for the settings, keeps them and lays the list out anew.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeSettingsCommands(CContactsView& view);

}  // namespace quill
