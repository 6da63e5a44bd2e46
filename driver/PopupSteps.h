// The step that comes before the use of a window below a popup menu.
#pragma once

namespace quill::driver {

class Steps;

// Dismisses the popup menu, submenus included, before the steps that follow, as a pen beside the
// menu does. Without an open menu nothing is added.
void AddDismissal(Steps& steps);

}  // namespace quill::driver
