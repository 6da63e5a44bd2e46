// notify, copydata: what other programs tell the main frame.
#include "app/ui/MainFrame.h"
#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "driver/Steps.h"
#include "driver/StoreNotice.h"
#include "driver/Targets.h"
#include "resources/Ids.h"

namespace quill::driver {

namespace {

Answer SendNotice(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> first = WholeNumber(arguments, u"param");
  if (!first) return Refusal(kMalformed);
  Notify(context, WholeNumber(arguments, u"message").value_or(kMessageItemWritten), *first);
  return Done();
}

// What arrives of a text of which so many bytes are handed over.
QString HandedOver(const QString& text, std::optional<int> bytes) {
  constexpr int unitBytes = 2;
  return bytes ? text.left(qMax(*bytes, 0) / unitBytes) : text;
}

Answer CopyData(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> kind = WholeNumber(arguments, u"kind");
  const std::optional<QString> text = Text(arguments, u"text");
  const std::optional<int> bytes = WholeNumber(arguments, u"bytes");
  if (!kind || !text || (HasArgument(arguments, u"bytes") && !bytes)) return Refusal(kMalformed);
  context.Steps.Add([kind = *kind, text = HandedOver(*text, bytes), &steps = context.Steps] {
    CMainFrame* const frame = FindMainFrame();
    steps.SetAnswer(Result(u"copydata", frame && frame->CopyData(kind, text)));
  });
  return Done();
}

}  // namespace

OperationTable FrameOperations() { return {{u"notify", SendNotice}, {u"copydata", CopyData}}; }

}  // namespace quill::driver
