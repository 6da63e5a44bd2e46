#include "app/ui/FileImport.h"

#include <QCursor>
#include <QGuiApplication>

#include "cli/ImportVerb.h"
#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kReportLines = 12;  // as many as a message box shows

QString FirstLines(const QString& report) {
  QStringList lines = report.split(u'\n', Qt::SkipEmptyParts);
  if (lines.size() <= kReportLines) return lines.join(u'\n');
  const qsizetype more = lines.size() - kReportLines;
  lines.resize(kReportLines);
  return lines.join(u'\n') + QStringLiteral("\n... and %1 more lines").arg(more);
}

}  // namespace

void ImportFilesAndReport(const Places& places, const QStringList& files) {
  QString report;
  QTextStream text(&report);
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const int exitCode = RunImport({.Where = places, .Arguments = files}, {text, text});
  QGuiApplication::restoreOverrideCursor();
  text.flush();
  g_services.Prompt->Show(
      {.Text = FirstLines(report),
       .Icon = exitCode == kExitDone ? PromptIcon::Information : PromptIcon::Warning});
}

}  // namespace quill
