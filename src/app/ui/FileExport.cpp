#include "app/ui/FileExport.h"

#include <QFileInfo>

#include "app/CardFileExport.h"
#include "app/ui/ExchangeReport.h"
#include "platform/ui/ProgressDlg.h"

namespace quill {

void ExportFileAndReport(CScreen& screen, const Places& places, const ExportChoice& choice) {
  ExportTask task{
      .Where = places, .File = choice.File, .Options = {.Restriction = choice.Restriction}};
  ExchangeReport report;
  int exitCode = kExitFailed;
  CProgressDlg progress(screen, QStringLiteral("Export"), [&](CProgressDlg& dialog) {
    task.Options.Continue = [&](int done, int count) {
      return dialog.Continue(QFileInfo(choice.File).fileName(),
                             QStringLiteral("%L1 of %L2 contacts").arg(done).arg(count));
    };
    exitCode = ExportFile(task, report.Target());
  });
  progress.DoModal();
  report.Show(exitCode, {choice.File});
}

}  // namespace quill
