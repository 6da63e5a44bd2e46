#include "app/ui/ExchangeReport.h"

#include <QFileInfo>

#include <algorithm>

#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kMessageLines = 4;  // after the results: a message box is small
constexpr QStringView kProgram = u"quill: ";

QStringList LinesOf(const QString& text) { return text.split(u'\n', Qt::SkipEmptyParts); }

QStringList FirstLines(const QString& messages) {
  QStringList lines = LinesOf(messages);
  for (QString& line : lines)
    if (line.startsWith(kProgram)) line.remove(0, kProgram.size());
  const qsizetype more = lines.size() - kMessageLines;
  if (more <= 0) return lines;
  lines.resize(kMessageLines);
  return lines << QStringLiteral("... and %1 more").arg(more);
}

// The name of a file keeps its letters.
QString Sentence(QString line, const QStringList& files) {
  const bool isNameFirst = std::any_of(files.begin(), files.end(),
                                       [&](const QString& file) { return line.startsWith(file); });
  if (!isNameFirst) line[0] = line[0].toUpper();
  return line.endsWith(u'.') ? line : line + u'.';
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
  QStringList lines = LinesOf(m_results) + FirstLines(m_messages);
  for (QString& line : lines) line = Sentence(line, files);
  g_services.Prompt->Show(
      {.Text = WithoutFolders(lines.join(u'\n'), files),
       .Icon = exitCode == kExitDone ? PromptIcon::Information : PromptIcon::Warning});
}

}  // namespace quill
