#include "cli/ImportVerb.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

#include "app/StoreOpening.h"
#include "cli/ProgressLine.h"
#include "exchange/CardImport.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

QString ProgressText(const QString& name, const ImportProgress& progress, qint64 size) {
  const QString text = QStringLiteral("%1: %2 cards").arg(name).arg(progress.Cards);
  if (size <= 0) return text;  // a pipe does not say how much will come
  return text + QStringLiteral(", %1 %").arg(100 * progress.BytesRead / size);
}

ImportSummary ImportFile(QFile& file, StoreProvider& store, const Console& console) {
  ProgressLine line(console);
  ImportOptions options;
  options.FallbackCharset = FallbackCharset(QLocale::system());
  options.Continue = [&](const ImportProgress& progress) {
    line.Show(ProgressText(file.fileName(), progress, file.size()));
    return true;
  };
  return ImportCards(file, store, options);
}

void PrintUnreadable(const QString& name, const ImportSummary& summary, QTextStream& err) {
  for (const UnreadableCard& card : summary.UnreadableCards) {
    err << name << ':' << card.Line << ": card " << card.Ordinal << ": "
        << CardFaultText(card.Fault) << '\n';
  }
  const qint64 unlisted = summary.Unreadable - static_cast<qint64>(summary.UnreadableCards.size());
  if (unlisted > 0) err << name << ": and " << unlisted << " more unreadable cards\n";
  if (summary.LinesNotUnderstood > 0)
    err << name << ": lines not understood: " << summary.LinesNotUnderstood << '\n';
  err.flush();
}

int ExitCodeOf(const ImportSummary& summary) {
  if (summary.End != ImportEnd::WholeFile) return kExitFailed;
  const bool heldNone = summary.New + summary.Same == 0;
  return summary.Unreadable > 0 || heldNone ? kExitPartly : kExitDone;
}

// Returns the exit code as if this were the only file.
int Report(const QFile& file, const ImportSummary& summary, const Console& console) {
  const QString name = file.fileName();
  PrintUnreadable(name, summary, console.Err);
  if (summary.End == ImportEnd::DeviceFailed)
    Complain(console, QStringLiteral("%1: %2").arg(name, file.errorString()));
  if (summary.End == ImportEnd::StoreFailed)
    Complain(console, QStringLiteral("%1: %2").arg(name, summary.StoreError));
  if (summary.New + summary.Same + summary.Unreadable == 0) {
    Complain(console, QStringLiteral("%1: no contacts in it").arg(name));
  } else {
    console.Out << name << ": " << summary.New << " new, " << summary.Same << " the same, "
                << summary.Unreadable << " unreadable" << Qt::endl;
  }
  return ExitCodeOf(summary);
}

int ImportNamed(const QString& name, StoreProvider& store, const Console& console) {
  QFile file(name);
  // Opening a folder for reading works, reading it does not.
  const bool isFolder = QFileInfo(name).isDir();
  if (isFolder || !file.open(QIODevice::ReadOnly)) {
    const QString reason = isFolder ? QStringLiteral("is a folder") : file.errorString();
    Complain(console, QStringLiteral("%1: %2").arg(name, reason));
    return kExitFailed;
  }
  return Report(file, ImportFile(file, store, console), console);
}

}  // namespace

int RunImport(const VerbCall& call, const Console& console) {
  PimStore store(call.Where.StoreFile);
  const StoreOpening opening(store);
  if (!opening.Succeeded()) {
    Complain(console, opening.Problem());
    return kExitFailed;
  }
  int exitCode = kExitDone;
  for (const QString& name : call.Arguments)
    exitCode = std::max(exitCode, ImportNamed(name, store, console));
  return exitCode;
}

}  // namespace quill
