// Menus as the protocol writes them.
#pragma once

#include <QJsonArray>

#include "platform/MenuModel.h"

namespace quill::driver {

QJsonArray ItemsJson(const std::vector<MenuItem>& items);
// The menus of a bar; its buttons are one more menu without a text.
QJsonArray MenuBarJson(const MenuBarModel& bar);

}  // namespace quill::driver
