// now, panel, fault, sounds, quit.
#include <QDateTime>
#include <QJsonArray>

#include "driver/Arguments.h"
#include "driver/FaultTable.h"
#include "driver/Operations.h"
#include "driver/SettableClock.h"
#include "driver/SilentSounds.h"
#include "driver/Steps.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"

namespace quill::driver {

namespace {

// A local time that stands still from now on; null lets the clock go again.
Answer Now(const QJsonObject& arguments, OperationContext& context) {
  if (arguments.value(u"value").isNull()) {
    context.Clock.Set(std::nullopt);
    return Done();
  }
  const QString text = arguments.value(u"value").toString();
  const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
  if (!time.isValid()) return Refusal(kMalformed);
  context.Clock.Set(time);
  return Done();
}

Answer Panel(const QJsonObject& arguments, OperationContext& context) {
  if (HasArgument(arguments, u"up") && !Truth(arguments, u"up")) return Refusal(kMalformed);
  context.Steps.Add([up = Truth(arguments, u"up"), &steps = context.Steps] {
    InputPanel& panel = *g_services.InputPanel;
    if (up) *up ? panel.Raise() : panel.Lower();
    steps.SetAnswer(Result(u"panel", panel.IsUp()));
  });
  return Result(u"panel", g_services.InputPanel->IsUp());
}

Answer SwitchFault(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<QString> name = Text(arguments, u"name");
  const std::optional<bool> on = Truth(arguments, u"on");
  if (!name || !on) return Refusal(kMalformed);
  if (!FaultTable::IsKnown(*name)) return Refusal(kUnknown);
  Fault fault;
  fault.Code = WholeNumber(arguments, u"code").value_or(kDefaultFaultCode);
  fault.OnlyItem = WholeNumber(arguments, u"oid");
  context.Faults.Switch(*name, *on ? std::optional(fault) : std::nullopt);
  return Done();
}

QJsonObject SoundJson(const SoundRequest& request) {
  const bool stops = request.What == SoundRequest::Kind::Stop;
  QJsonObject object;
  object.insert(u"what", stops ? QStringLiteral("stop") : QStringLiteral("play"));
  if (!stops) object.insert(u"file", request.Path);
  return object;
}

Answer TellSounds(const QJsonObject&, OperationContext& context) {
  QJsonArray sounds;
  for (const SoundRequest& request : context.Sounds.Requests()) sounds.append(SoundJson(request));
  return Result(u"sounds", sounds);
}

Answer Quit(const QJsonObject&, OperationContext& context) {
  context.Steps.CloseProgram();
  return Done();
}

}  // namespace

OperationTable DeviceOperations() {
  return {{u"now", Now},
          {u"panel", Panel},
          {u"fault", SwitchFault},
          {u"sounds", TellSounds},
          {u"quit", Quit}};
}

}  // namespace quill::driver
