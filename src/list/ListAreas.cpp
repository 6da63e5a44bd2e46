#include "list/ListAreas.h"

#include "list/ListState.h"

namespace quill {

namespace {

constexpr ListAreas kBelowIndexStrip = {kRowsWithIndex, {0, 45, 225, 225}, {225, 45, 15, 222}};
constexpr ListAreas kBelowTitle = {kRowsWithoutIndex, {0, 25, 225, 245}, {225, 25, 15, 242}};

}  // namespace

bool ShowsIndexStrip(const Settings& settings) { return settings.Abc != 0; }

ListAreas LayOutAreas(const Settings& settings) {
  return ShowsIndexStrip(settings) ? kBelowIndexStrip : kBelowTitle;
}

}  // namespace quill
