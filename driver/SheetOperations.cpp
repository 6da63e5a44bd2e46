// page.
#include <QPointer>

#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "driver/PopupSteps.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/Sheet.h"

namespace quill::driver {

namespace {

Answer TellPage(const CSheet& sheet) {
  const CSheetPage* page = sheet.ActivePage();
  if (page == nullptr) return Refusal(kUnknown);
  return {.Members = {{QStringLiteral("index"), sheet.ActiveIndex()},
                      {QStringLiteral("title"), page->Title()}}};
}

// A sheet below another window keeps its page: its user could not reach it either.
Answer ShowPage(CSheet& sheet, const QJsonObject& arguments, Steps& steps) {
  const std::optional<int> index = WholeNumber(arguments, u"index");
  if (!index) return Refusal(kMalformed);
  if (*index < 0 || *index >= static_cast<int>(sheet.Pages().size())) return Refusal(kUnknown);
  if (FindTopmost() != &sheet) return Refusal(kBusy);
  AddDismissal(steps);
  steps.Add([target = QPointer(&sheet), index = *index] {
    if (target) target->ShowPage(index);
  });
  return Done();
}

Answer Page(const QJsonObject& arguments, OperationContext& context) {
  CSheet* sheet = FindSheet();
  if (sheet == nullptr) return Refusal(kUnknown);
  if (!HasArgument(arguments, u"index")) return TellPage(*sheet);
  return ShowPage(*sheet, arguments, context.Steps);
}

}  // namespace

OperationTable SheetOperations() { return {{u"page", Page}}; }

}  // namespace quill::driver
