// popup, choose, dismiss.
#include "driver/Arguments.h"
#include "driver/MenuJson.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/PopupSteps.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/MenuPopup.h"

namespace quill::driver {

namespace {

void LiftPen(OperationContext& context) {
  if (!context.Pen.IsDown()) return;
  context.Steps.Add([&pen = context.Pen] { pen.Release(pen.Position()); });
}

Answer Popup(const QJsonObject&, OperationContext&) {
  const CMenuPopup* popup = FindPopup();
  return Result(u"popup", popup ? QJsonValue(ItemsJson(popup->Items())) : QJsonValue());
}

Answer Choose(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> id = WholeNumber(arguments, u"id");
  if (!id) return Refusal(kMalformed);
  const CMenuPopup* popup = FindPopup();
  const MenuItem* item = popup ? FindMenuItem(popup->Items(), *id) : nullptr;
  if (item == nullptr) return Refusal(kUnknown);
  if (!item->Enabled) return Refusal(kDisabled);
  LiftPen(context);
  context.Steps.Add([id = *id] {
    if (CMenuPopup* open = FindPopup()) open->Choose(id);
  });
  return Done();
}

Answer Dismiss(const QJsonObject&, OperationContext& context) {
  if (FindPopup() == nullptr && !context.Pen.IsDown()) return Refusal(kUnknown);
  LiftPen(context);
  AddDismissal(context.Steps);
  return Done();
}

}  // namespace

OperationTable PopupOperations() {
  return {{u"popup", Popup}, {u"choose", Choose}, {u"dismiss", Dismiss}};
}

}  // namespace quill::driver
