#include "driver/StoreNotice.h"

#include "app/ui/MainFrame.h"
#include "driver/Arguments.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "resources/Ids.h"

namespace quill::driver {

namespace {

constexpr int kOthersChange = 0;  // a notice's first parameter: not the program's own change

void Post(int message, int first) {
  if (CMainFrame* frame = FindMainFrame()) frame->PostStoreMessage(message, first, 0);
}

}  // namespace

void Notify(OperationContext& context, int message, int first) {
  context.Steps.Add([message, first] { Post(message, first); });
}

void NotifyOfOthersChange() { Post(kMessageItemWritten, kOthersChange); }

void NotifyUnlessQuiet(const QJsonObject& arguments, OperationContext& context) {
  if (!IsSet(arguments, u"quiet")) Notify(context, kMessageItemWritten, kOthersChange);
}

}  // namespace quill::driver
