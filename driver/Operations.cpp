#include "driver/Operations.h"

#include <algorithm>

namespace quill::driver {

namespace {

void Append(OperationTable& table, OperationTable group) {
  std::move(group.begin(), group.end(), std::back_inserter(table));
}

}  // namespace

OperationTable AllOperations() {
  OperationTable table;
  Append(table, PenOperations());
  Append(table, KeyOperations());
  Append(table, CommandOperations());
  Append(table, PopupOperations());
  Append(table, WindowOperations());
  Append(table, ControlOperations());
  Append(table, RevealOperations());
  Append(table, SheetOperations());
  Append(table, PaintOperations());
  Append(table, AccessibleOperations());
  Append(table, ListOperations());
  Append(table, StoreOperations());
  Append(table, AppointmentOperations());
  Append(table, DeviceOperations());
  Append(table, FrameOperations());
  Append(table, SettingsOperations());
  Append(table, RecordOperations());
  Append(table, InkOperations());
  Append(table, InfraredOperations());
  Append(table, WidgetOperations());
  return table;
}

Answer RunOperation(const OperationTable& table, const Request& request,
                    OperationContext& context) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const Operation& operation) {
    return operation.Name == request.Operation;
  });
  if (found == table.end()) return Refusal(kUnknownOperation);
  return found->Run(request.Arguments, context);
}

}  // namespace quill::driver
