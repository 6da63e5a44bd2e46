#include "app/ui/FileImport.h"

#include <QCursor>
#include <QFileInfo>
#include <QGuiApplication>

#include "cli/ImportVerb.h"
#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kReportLines = 4;  // of details, after the summary: a message box is small

QString FirstLines(const QString& report) {
  QStringList lines = report.split(u'\n', Qt::SkipEmptyParts);
  if (lines.size() <= kReportLines) return lines.join(u'\n');
  const qsizetype more = lines.size() - kReportLines;
  lines.resize(kReportLines);
  return lines.join(u'\n') + QStringLiteral("\n... and %1 more lines").arg(more);
}

// A message box has no room for whole paths.
QString WithoutFolders(QString report, const QStringList& files) {
  for (const QString& file : files) report.replace(file, QFileInfo(file).fileName());
  return report;
}

}  // namespace

void ImportFilesAndReport(const Places& places, const QStringList& files) {
  QString summary;
  QString details;
  QTextStream out(&summary);
  QTextStream err(&details);
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const int exitCode = RunImport({.Where = places, .Arguments = files}, {out, err});
  QGuiApplication::restoreOverrideCursor();
  out.flush();
  err.flush();
  g_services.Prompt->Show(
      {.Text = WithoutFolders(summary + FirstLines(details), files),
       .Icon = exitCode == kExitDone ? PromptIcon::Information : PromptIcon::Warning});
}

}  // namespace quill
