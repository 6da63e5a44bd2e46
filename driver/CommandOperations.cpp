// command, menus.
#include <QPointer>

#include "driver/Arguments.h"
#include "driver/MenuJson.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

// What a command would come to, without running it.
CommandResult Foresee(const CWindow& window, int id, CommandCheck check) {
  CommandRoute route = window.Route();
  route.Add(window.Screen().ScreenCommands());
  const auto rows = route.Rows(id);
  if (rows.empty()) return CommandResult::Unknown;
  const bool enabled =
      check == CommandCheck::Anyway ? bool(rows.front()->Run) : route.State(id).Enabled;
  return enabled ? CommandResult::Done : CommandResult::Disabled;
}

Answer Command(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> id = WholeNumber(arguments, u"id");
  if (!id) return Refusal(kMalformed);
  if (context.Pen.IsDown() || FindPopup() != nullptr) return Refusal(kBusy);
  CWindow* window = FindTopmost();
  if (window == nullptr) return Refusal(kUnknown);
  const auto check = IsSet(arguments, u"force") ? CommandCheck::Anyway : CommandCheck::AsMenu;
  const CommandResult foreseen = Foresee(*window, *id, check);
  if (foreseen == CommandResult::Unknown) return Refusal(kUnknown);
  if (foreseen == CommandResult::Disabled) return Refusal(kDisabled);
  context.Steps.Add([target = QPointer(window), id = *id, check] {
    if (target) target->RunCommand(id, check);
  });
  return Done();
}

Answer Menus(const QJsonObject&, OperationContext&) {
  const CWindow* window = FindTopmost();
  return Result(u"menus", MenuBarJson(window ? window->MenuBar() : MenuBarModel{}));
}

}  // namespace

OperationTable CommandOperations() { return {{u"command", Command}, {u"menus", Menus}}; }

}  // namespace quill::driver
