// The category menu: shown at the label, and its commands.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeCategoryCommands(CContactsView& view);

// A category may have been renamed or removed: builds the menu and the page again.
void ShowCategoriesAnew(CContactsView& view);

// Opens the menu and carries out what is chosen. By memo nothing happens.
void ShowCategoryMenu(CContactsView& view);

}  // namespace quill
