// list, scroll.
#include <QJsonArray>
#include <QPointer>
#include <QScrollBar>

#include <array>

#include "driver/Arguments.h"
#include "driver/Operations.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "list/ListState.h"
#include "list/ui/ContactListCtrl.h"
#include "memo/MemoState.h"

namespace quill::driver {

namespace {

template <typename Enum>
int Number(Enum value) {
  return static_cast<int>(value);
}

QJsonObject RowJson(const ListRow& row) {
  return {
      {QStringLiteral("oid"), row.Oid},           {QStringLiteral("name"), row.Name},
      {QStringLiteral("text"), row.Text},         {QStringLiteral("company"), row.Company},
      {QStringLiteral("icon"), Number(row.Icon)},
  };
}

QScrollBar* FindBar(const QWidget* window) {
  if (window == nullptr) return nullptr;
  for (QScrollBar* bar : window->findChildren<QScrollBar*>())
    if (bar->orientation() == Qt::Vertical) return bar;
  return nullptr;
}

QJsonValue ScrollJson() {
  const QScrollBar* bar = FindBar(FindView());
  if (bar == nullptr) return QJsonValue();
  return QJsonObject{{QStringLiteral("min"), bar->minimum()},
                     {QStringLiteral("max"), bar->maximum()},
                     {QStringLiteral("value"), bar->value()}};
}

void AddSelection(QJsonObject& object, const ListState& list) {
  QJsonArray selected;
  for (const int key : list.SelectedKeys) selected.append(key);
  object.insert(u"current", list.CurrentRow);
  object.insert(u"selected", selected);
}

void AddFilter(QJsonObject& object, const ListState& list) {
  object.insert(u"mode", Number(list.Mode));
  object.insert(u"filterKind", Number(list.Filter));
  object.insert(u"filterSubKind", Number(list.SubFilter));
  object.insert(u"indexButton", list.IndexButton);
  object.insert(u"indexLower", list.IndexLower);
  object.insert(u"indexUpper", list.IndexUpper);
  object.insert(u"category", list.CategoryName);
  object.insert(u"categoryCount", list.CategoryCount);
  object.insert(u"search", list.SearchText);
  object.insert(u"restriction", list.Restriction);
}

void AddPage(QJsonObject& object, const ListState& list) {
  object.insert(u"total", list.Total);
  object.insert(u"top", list.Top);
  object.insert(u"rowsPerPage", list.RowsPerPage);
  object.insert(u"rowsShown", list.RowsShown);
  QJsonArray rows;
  for (int i = 0; i < list.RowsShown; ++i)
    rows.append(RowJson(list.Rows[static_cast<std::size_t>(i)]));
  object.insert(u"rows", rows);
}

Answer List(const QJsonObject&, OperationContext&) {
  QJsonObject list;
  AddFilter(list, g_list);
  AddPage(list, g_list);
  AddSelection(list, g_list);
  list.insert(u"memos", QJsonArray::fromStringList(g_memo.NameList));
  list.insert(u"scroll", ScrollJson());
  return Result(u"list", list);
}

struct BarRequest {
  QStringView Code;
  QAbstractSlider::SliderAction Action;
};
constexpr std::array kBarRequests = {
    BarRequest{u"lineup", QAbstractSlider::SliderSingleStepSub},
    BarRequest{u"linedown", QAbstractSlider::SliderSingleStepAdd},
    BarRequest{u"pageup", QAbstractSlider::SliderPageStepSub},
    BarRequest{u"pagedown", QAbstractSlider::SliderPageStepAdd},
    BarRequest{u"top", QAbstractSlider::SliderToMinimum},
    BarRequest{u"bottom", QAbstractSlider::SliderToMaximum},
};

// What the bar does when its user asks for this; nothing for an unknown request.
std::function<void(QScrollBar&)> BarAction(const QString& code, int value) {
  if (code == u"thumbtrack") return [value](QScrollBar& bar) { bar.setSliderPosition(value); };
  if (code == u"endscroll") return [](QScrollBar& bar) { bar.setSliderDown(false); };
  for (const BarRequest& request : kBarRequests)
    if (request.Code == code)
      return [action = request.Action](QScrollBar& bar) { bar.triggerAction(action); };
  return nullptr;
}

Answer Scroll(const QJsonObject& arguments, OperationContext& context) {
  const QString code = arguments.value(u"code").toString();
  const auto action = BarAction(code, WholeNumber(arguments, u"value").value_or(0));
  if (!action) return Refusal(kMalformed);
  const QJsonValue on = arguments.value(u"on");
  const auto target = on.isUndefined() ? FindTarget(QStringLiteral("view")) : FindTarget(on);
  if (!target) return RefuseTarget(on);
  QWidget* window = target->Window;
  // The list's bar stands beside it, in the view.
  QScrollBar* bar = FindBar(window == FindList() ? FindView() : window);
  if (bar == nullptr) bar = qobject_cast<QScrollBar*>(window);
  if (bar == nullptr) return Refusal(kUnknown);
  context.Steps.Add([target = QPointer(bar), action] {
    if (target) action(*target);
  });
  return Done();
}

}  // namespace

OperationTable ListOperations() { return {{u"list", List}, {u"scroll", Scroll}}; }

}  // namespace quill::driver
