// reveal.
#include "appointments/AppointmentRows.h"
#include "appointments/ui/AppointmentDlg.h"
#include "appointments/ui/AppointmentRowList.h"
#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/PopupSteps.h"
#include "driver/Steps.h"
#include "driver/Targets.h"

namespace quill::driver {

namespace {

// On the label: what is shown over the value would take the tap.
QPoint LabelOf(AppointmentRow row) {
  constexpr int kLabelX = 20;
  return {kLabelX, AppointmentRowArea(row).center().y()};
}

Answer Reveal(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> id = WholeNumber(arguments, u"id");
  if (!id) return Refusal(kMalformed);
  auto* const dialog = qobject_cast<CAppointmentDlg*>(FindTopmost());
  const auto row = RowOfControl(*id);
  if (dialog == nullptr || !row) return Refusal(kUnknown);
  AddDismissal(context.Steps);
  auto& rows = *dialog->findChild<CAppointmentRowList*>();
  rows.Reached(*row);  // a user scrolls it out from under the panel
  const QPointF at = OnScreen({&rows, rows.rect()}, LabelOf(*row));
  context.Steps.Add([&pen = context.Pen, at] { pen.Press(at); });
  context.Steps.Add([&pen = context.Pen, at] { pen.Release(at); });
  return Done();
}

}  // namespace

OperationTable RevealOperations() { return {{u"reveal", Reveal}}; }

}  // namespace quill::driver
