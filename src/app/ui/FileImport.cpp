#include "app/ui/FileImport.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <optional>

#include "app/CardFileImport.h"
#include "app/CardFiles.h"
#include "app/ui/CharsetDlg.h"
#include "app/ui/ExchangeReport.h"
#include "exchange/CharsetProbe.h"
#include "platform/ui/ProgressDlg.h"
#include "platform/ui/WaitCursor.h"

namespace quill {

namespace {

std::optional<QByteArray> UndeclaredTextOf(const QString& name) {
  QFile file(name);
  if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  return FindUndeclaredText(file);
}

std::optional<QByteArray> UndeclaredText(const QStringList& arguments) {
  const WaitCursor wait;
  for (const QString& argument : arguments)
    for (const QString& name : CardFilesOf(argument))
      if (const auto line = UndeclaredTextOf(name)) return line;
  return std::nullopt;
}

// Nothing when the user does not want to go on.
std::optional<QByteArray> CharsetFor(CScreen& screen, const QStringList& files) {
  const QByteArray usual = FallbackCharset(QLocale::system());
  const auto line = UndeclaredText(files);
  if (!line) return usual;
  CCharsetDlg dialog(screen, *line, usual);
  if (dialog.DoModal() != kResultOK) return std::nullopt;
  return dialog.Charset();
}

}  // namespace

void ImportFilesAndReport(CScreen& screen, const Places& places, const QStringList& files) {
  const auto charset = CharsetFor(screen, files);
  if (!charset) return;
  ImportTask task{.Where = places,
                  .Arguments = files,
                  .Options = {.FallbackCharset = *charset},
                  .Sources = ImportSources::PlainFiles};
  ExchangeReport report;
  int exitCode = kExitFailed;
  CProgressDlg progress(screen, QStringLiteral("Import"), [&](CProgressDlg& dialog) {
    task.Continue = [&dialog](const QString& file, const ImportProgress& now) {
      return dialog.Continue(QFileInfo(file).fileName(),
                             QStringLiteral("%L1 cards").arg(now.Cards));
    };
    exitCode = ImportFiles(task, report.Target());
  });
  progress.DoModal();
  report.Show(exitCode, files);
}

}  // namespace quill
