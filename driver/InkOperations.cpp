// ink.
#include "driver/Operations.h"
#include "driver/Targets.h"
#include "ink/ui/InkX.h"

namespace quill::driver {

namespace {

Answer Ink(const QJsonObject&, OperationContext&) {
  const InkX* ink = FindInk();
  if (ink == nullptr) return Refusal(kUnknown);
  const InkNote& note = ink->Document().Note();
  return Result(u"ink", QJsonObject{
                            {QStringLiteral("strokes"), static_cast<int>(note.Strokes.size())},
                            {QStringLiteral("text"), note.Text.Text},
                            {QStringLiteral("zoom"), ink->Zoom()},
                            {QStringLiteral("style"), ink->PageStyle()},
                            {QStringLiteral("wrap"), ink->Wrap()},
                            {QStringLiteral("view"), ink->View()},
                            {QStringLiteral("toggle"), ink->Toggle()},
                            {QStringLiteral("selection"), ink->HasSelection()},
                            {QStringLiteral("canUndo"), ink->CanUndo()},
                            {QStringLiteral("canRedo"), ink->CanRedo()},
                            {QStringLiteral("length"), static_cast<int>(ink->DataLength())},
                            {QStringLiteral("readOnly"), ink->readOnly()},
                        });
}

}  // namespace

OperationTable InkOperations() { return {{u"ink", Ink}}; }

}  // namespace quill::driver
