#include "app/ui/ExchangeReport.h"

#include <QFileInfo>

#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kMessageLines = 4;  // after the results: a message box is small
constexpr QStringView kProgram = u"quill: ";

QString FirstLines(const QString& messages) {
  QStringList lines = messages.split(u'\n', Qt::SkipEmptyParts);
  for (QString& line : lines)
    if (line.startsWith(kProgram)) line.remove(0, kProgram.size());
  if (lines.size() <= kMessageLines) return lines.join(u'\n');
  const qsizetype more = lines.size() - kMessageLines;
  lines.resize(kMessageLines);
  return lines.join(u'\n') + QStringLiteral("\n... and %1 more").arg(more);
}

// A message box has no room for whole paths.
QString WithoutFolders(QString report, const QStringList& files) {
  for (const QString& file : files) report.replace(file, QFileInfo(file).fileName());
  return report;
}

}  // namespace

void ExchangeReport::Show(int exitCode, const QStringList& files) {
  m_out.flush();
  m_err.flush();
  g_services.Prompt->Show(
      {.Text = WithoutFolders(m_results + FirstLines(m_messages), files),
       .Icon = exitCode == kExitDone ? PromptIcon::Information : PromptIcon::Warning});
}

}  // namespace quill
