// The driver with operations of its own that look deeper into a running shell: what assistive
// technology is told, how many widgets there are, and values of the registry; one that
// opens a sample sheet, and two that ask for sounds.
#include <QAccessible>
#include <QApplication>
#include <QJsonArray>

#include "driver/Arguments.h"
#include "driver/Geometry.h"
#include "driver/Session.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/Clock.h"
#include "platform/RegistryStore.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/MultiEdit.h"
#include "platform/ui/Screen.h"
#include "platform_ui/SampleWindows.h"

using namespace quill;
using namespace quill::driver;

namespace {

const QString kProbeKey = QStringLiteral("\\Software\\Fennick\\Quill");

QJsonObject Describe(QAccessibleInterface& node) {
  QJsonArray children;
  for (int i = 0; i < node.childCount(); ++i)
    if (QAccessibleInterface* child = node.child(i)) children.append(Describe(*child));
  QJsonObject object = RectangleJson(node.rect());
  object.insert(u"role", node.role());
  object.insert(u"name", node.text(QAccessible::Name));
  object.insert(u"children", children);
  return object;
}

Answer Accessible(const QJsonObject&, OperationContext&) {
  QAccessibleInterface* screen = QAccessible::queryAccessibleInterface(FindScreen());
  return screen ? Result(u"accessible", Describe(*screen)) : Refusal(u"nothing");
}

Answer Widgets(const QJsonObject&, OperationContext&) {
  return Result(u"widgets", static_cast<int>(QApplication::allWidgets().size()));
}

Answer Remember(const QJsonObject& arguments, OperationContext&) {
  const auto value = static_cast<quint32>(WholeNumber(arguments, u"value").value_or(0));
  const bool stored = g_services.Registry->PutNumber(kProbeKey, QStringLiteral("AreaCode"), value);
  return stored ? Done() : Refusal(u"not stored");
}

Answer Recall(const QJsonObject&, OperationContext&) {
  const auto value = g_services.Registry->QueryNumber(kProbeKey, QStringLiteral("AreaCode"));
  return Result(u"recall", value ? QJsonValue(static_cast<int>(*value)) : QJsonValue());
}

Answer TellTime(const QJsonObject&, OperationContext&) {
  return Result(u"clock", g_services.Clock->Now().toString(Qt::ISODate));
}

constexpr int kDate = 301;
constexpr int kPlainDate = 302;
constexpr int kLines = 303;

template <class Control>
void Place(CSheetPage& page, int id, Control& control) {
  control.setGeometry(10, 60 + 20 * (id - kDate), 140, id == kLines ? 47 : 17);
  page.AddControl(id, &control);
}

// On its second page: a date that may be none, one that is always there, an editor of several
// lines.
Answer OpenSheet(const QJsonObject&, OperationContext& context) {
  context.Steps.Add([] {
    quill::test::SampleSheet sheet(*FindScreen());
    CDatePicker date(NoneCheck::Shown, &sheet.Two);
    CDatePicker plainDate(NoneCheck::Absent, &sheet.Two);
    CMultiEdit lines({}, &sheet.Two);
    Place(sheet.Two, kDate, date);
    Place(sheet.Two, kPlainDate, plainDate);
    Place(sheet.Two, kLines, lines);
    date.SetDate(std::nullopt, {2004, 9, 15});
    plainDate.SetDate(std::nullopt, {2004, 9, 16});
    sheet.DoModal();
  });
  return Done();
}

// As a window does it.
Answer Play(const QJsonObject& arguments, OperationContext&) {
  g_services.Sounds->Play(Text(arguments, u"file").value_or(QString()));
  return Done();
}

Answer StopSound(const QJsonObject&, OperationContext&) {
  g_services.Sounds->Stop();
  return Done();
}

}  // namespace

int main(int argc, char** argv) {
  OperationTable operations = AllOperations();
  operations.push_back({u"accessible", Accessible});
  operations.push_back({u"widgets", Widgets});
  operations.push_back({u"remember", Remember});
  operations.push_back({u"recall", Recall});
  operations.push_back({u"clock", TellTime});
  operations.push_back({u"open-sheet", OpenSheet});
  operations.push_back({u"play", Play});
  operations.push_back({u"stop-sound", StopSound});
  return RunSession(operations, argc, argv);
}
