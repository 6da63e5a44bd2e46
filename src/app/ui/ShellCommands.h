// The application's own commands: the About box and the menu behind the title bar.
#pragma once

#include "platform/CommandTarget.h"

namespace quill {

class CContactsApp;

class ShellCommands : public CommandTarget {
 public:
  explicit ShellCommands(CContactsApp& application);
};

}  // namespace quill
