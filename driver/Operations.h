// The operations of the protocol: one table of names and handlers.
//
// A handler checks its arguments, reads what is asked for, and answers. What it sends into the
// windows it adds as steps, so that nothing nests below the handler itself.
#pragma once

#include <QStringView>

#include <functional>
#include <vector>

#include "driver/Request.h"
#include "store/StoreProvider.h"

namespace quill::driver {

class FaultTable;
class Pen;
class ScriptedInfrared;
class SettableClock;
class SilentSounds;
class Steps;

// What handlers work with. Owns nothing.
struct OperationContext {
  driver::Steps& Steps;
  driver::Pen& Pen;
  SettableClock& Clock;
  FaultTable& Faults;
  const SilentSounds& Sounds;
  StoreProvider& Store;  // below the faults
  QString StoreFile;
  ScriptedInfrared& Infrared;
};

using Handler = std::function<Answer(const QJsonObject& arguments, OperationContext& context)>;

struct Operation {
  QStringView Name;
  Handler Run;
};
using OperationTable = std::vector<Operation>;

OperationTable AllOperations();

// The groups that the whole table is made of.
OperationTable PenOperations();
OperationTable KeyOperations();
OperationTable CommandOperations();
OperationTable PopupOperations();
OperationTable WindowOperations();
OperationTable ControlOperations();
OperationTable RevealOperations();
OperationTable SheetOperations();
OperationTable PaintOperations();
OperationTable AccessibleOperations();
OperationTable ListOperations();
OperationTable StoreOperations();
OperationTable AppointmentOperations();
OperationTable DeviceOperations();
OperationTable FrameOperations();
OperationTable SettingsOperations();
OperationTable RecordOperations();
OperationTable InkOperations();
OperationTable InfraredOperations();
OperationTable WidgetOperations();

// The answer of the operation with this name; unknown ones are refused.
Answer RunOperation(const OperationTable& table, const Request& request, OperationContext& context);

}  // namespace quill::driver
