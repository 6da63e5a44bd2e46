#include "driver/MenuJson.h"

#include <QJsonObject>

namespace quill::driver {

namespace {

QJsonObject ItemJson(const MenuItem& item) {
  return {
      {QStringLiteral("id"), item.Id},
      {QStringLiteral("text"), item.Text},
      {QStringLiteral("enabled"), item.Enabled},
      {QStringLiteral("checked"), item.Checked},
      {QStringLiteral("separator"), item.Separator},
      {QStringLiteral("items"), ItemsJson(item.Items)},
  };
}

QJsonObject MenuJson(const Menu& menu) {
  return {{QStringLiteral("text"), menu.Text}, {QStringLiteral("items"), ItemsJson(menu.Items)}};
}

}  // namespace

QJsonArray ItemsJson(const std::vector<MenuItem>& items) {
  QJsonArray array;
  for (const MenuItem& item : items) array.append(ItemJson(item));
  return array;
}

QJsonArray MenuBarJson(const MenuBarModel& bar) {
  QJsonArray array;
  for (const Menu& menu : bar.Menus) array.append(MenuJson(menu));
  array.append(MenuJson({QString(), bar.Buttons}));
  return array;
}

}  // namespace quill::driver
