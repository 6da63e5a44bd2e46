// rows, parts, card.
#include <QJsonArray>

#include "driver/Arguments.h"
#include "driver/Geometry.h"
#include "driver/Operations.h"
#include "driver/Targets.h"
#include "editor/SummaryState.h"
#include "editor/ui/EditRecordSheet.h"
#include "editor/ui/PartEditor.h"

namespace quill::driver {

namespace {

QJsonArray RowsJson(const std::vector<RecordRow>& rows) {
  QJsonArray array;
  for (const RecordRow& row : rows)
    array.append(QJsonObject{{QStringLiteral("label"), row.Label},
                             {QStringLiteral("value"), row.Value},
                             {QStringLiteral("kind"), static_cast<int>(row.Kind)}});
  return array;
}

// The rows of the shown page; nothing when it has none.
std::optional<RowSet> ShownRows(const CEditRecordSheet& sheet) {
  switch (sheet.ActiveIndex()) {
    case 0:
      return RowSet::Basic;
    case 1:
      return RowSet::Detail;
    default:
      return std::nullopt;
  }
}

Answer Rows(const QJsonObject&, OperationContext&) {
  const auto* sheet = qobject_cast<CEditRecordSheet*>(FindTopmost());
  const auto rows = sheet ? ShownRows(*sheet) : std::nullopt;
  if (!rows) return Refusal(kUnknown);
  return Result(u"rows", RowsJson(RowsOf(sheet->Record(), *rows)));
}

Answer Parts(const QJsonObject&, OperationContext&) {
  const auto* sheet = qobject_cast<CEditRecordSheet*>(FindTopmost());
  if (sheet == nullptr) return Refusal(kUnknown);
  const CPartEditor* parts = FindPartEditor();
  return Result(u"parts", parts ? QJsonValue(RowsJson(RowsOf(sheet->Record(), parts->Parts())))
                                : QJsonValue());
}

Answer Card(const QJsonObject&, OperationContext&) {
  if (g_card.Contact == 0) return Result(u"card", QJsonValue());
  QJsonArray lines;
  for (const SummaryLine& line : g_card.Lines)
    lines.append(QJsonObject{{QStringLiteral("label"), line.Label.toString()},
                             {QStringLiteral("text"), line.Text}});
  QJsonObject card = RectangleJson(g_card.Place);
  card.insert(u"oid", g_card.Contact);
  card.insert(u"count", g_card.LineCount);
  card.insert(u"lines", lines);
  return Result(u"card", card);
}

}  // namespace

OperationTable RecordOperations() { return {{u"rows", Rows}, {u"parts", Parts}, {u"card", Card}}; }

}  // namespace quill::driver
