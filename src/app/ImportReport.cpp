#include "app/ImportReport.h"

namespace quill {
namespace {

QString CardTitle(const UnreadableCard& card) {
  const QString number = QStringLiteral("card %1").arg(card.Ordinal);
  return card.Name.isEmpty() ? number : QStringLiteral("%1 (%2)").arg(number, card.Name);
}

void PrintUnreadable(const QString& name, const ImportSummary& summary, QTextStream& err) {
  for (const UnreadableCard& card : summary.UnreadableCards) {
    err << name << ':' << card.Line << ": " << CardTitle(card) << ": " << CardFaultText(card.Fault)
        << '\n';
  }
  const qint64 unlisted = summary.Unreadable - static_cast<qint64>(summary.UnreadableCards.size());
  if (unlisted > 0) err << name << ": and " << unlisted << " more unreadable cards\n";
  if (summary.LinesNotUnderstood > 0)
    err << name << ": lines not understood: " << summary.LinesNotUnderstood << '\n';
  err.flush();
}

qint64 Contacts(const ImportSummary& summary) {
  return summary.New + summary.Changed + summary.Same;
}

int ExitCodeOf(const ImportSummary& summary) {
  if (summary.End == ImportEnd::Stopped) return kExitPartly;
  if (summary.End != ImportEnd::WholeFile) return kExitFailed;
  return summary.Unreadable > 0 || Contacts(summary) == 0 ? kExitPartly : kExitDone;
}

}  // namespace

QString CountsLine(const QString& name, const ImportSummary& summary) {
  return name + QStringLiteral(": %1 new, %2 changed, %3 the same, %4 unreadable")
                    .arg(summary.New)
                    .arg(summary.Changed)
                    .arg(summary.Same)
                    .arg(summary.Unreadable);
}

int ReportImport(const QString& name, const ImportSummary& summary, const Console& console) {
  PrintUnreadable(name, summary, console.Err);
  if (summary.End == ImportEnd::DeviceFailed || summary.End == ImportEnd::StoreFailed)
    Complain(console, QStringLiteral("%1: %2").arg(name, summary.Reason));
  if (summary.End == ImportEnd::Stopped)
    Complain(console, QStringLiteral("%1: stopped; what came in until then stays").arg(name));
  const bool isEmpty = Contacts(summary) + summary.Unreadable == 0;
  if (isEmpty && summary.End != ImportEnd::Stopped) {
    Complain(console, QStringLiteral("%1: no contacts in it").arg(name));
  } else {
    console.Out << CountsLine(name, summary) << Qt::endl;
  }
  return ExitCodeOf(summary);
}

}  // namespace quill
