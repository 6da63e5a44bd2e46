#include "app/CardFileImport.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

#include "app/CardFiles.h"
#include "app/ImportReport.h"
#include "app/ProgressLine.h"
#include "app/StoreOpening.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

constexpr QStringView kStandardInput = u"-";

QString ProgressText(const QString& name, const ImportProgress& progress, qint64 size) {
  const QString text = QStringLiteral("%1: %2 cards").arg(name).arg(progress.Cards);
  if (size <= 0) return text;  // a pipe does not say how much will come
  return text + QStringLiteral(", %1 %").arg(100 * progress.BytesRead / size);
}

bool IsNoPlainFile(const QString& name) {
  const QFileInfo info(name);
  return info.exists() && !info.isFile();
}

// The files of one command, one after the other into the same store.
class FileImport {
 public:
  FileImport(StoreProvider& store, const ImportTask& task, const Console& console)
      : m_store(store), m_task(task), m_console(console) {}

  void TakeAll() {
    for (const QString& argument : m_task.Arguments) {
      const QStringList names = CardFilesOf(argument);
      if (names.isEmpty()) Fail(kExitPartly, argument, QStringLiteral("no card files in it"));
      for (const QString& name : names) {
        TakeFile(name);
        if (m_isStopped) return;
      }
    }
  }

  int Finish() {
    if (m_files > 1)
      m_console.Out << CountsLine(QStringLiteral("%1 files").arg(m_files), m_sum) << Qt::endl;
    return m_exitCode;
  }

 private:
  void TakeFile(const QString& name) {
    const bool isInput = name == kStandardInput;
    QFile file(name);
    if (m_task.Sources == ImportSources::PlainFiles && IsNoPlainFile(name))
      return Fail(kExitFailed, name, QStringLiteral("not a file"));
    if (!(isInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
      return Fail(kExitFailed, name, file.errorString());
    const QString title = isInput ? QStringLiteral("standard input") : name;
    ImportSummary summary = Import(title, file);
    if (summary.End == ImportEnd::DeviceFailed) summary.Reason = file.errorString();
    TellGuess(title, summary);
    m_isStopped = summary.End == ImportEnd::Stopped;
    m_exitCode = std::max(m_exitCode, ReportImport(title, summary, m_console));
    Sum(summary);
  }

  ImportSummary Import(const QString& title, QFile& file) {
    ProgressLine line(m_console);
    ImportOptions options = m_task.Options;
    options.Continue = [&](const ImportProgress& progress) {
      line.Show(ProgressText(title, progress, file.size()));
      return !m_task.Continue || m_task.Continue(title, progress);
    };
    return ImportCards(file, m_store, options);
  }

  void TellGuess(const QString& title, const ImportSummary& summary) {
    if (!summary.IsGuessed || m_task.Charset == CharsetOrigin::Chosen) return;
    Complain(m_console,
             QStringLiteral("%1: does not say how its letters are written; read as %2 (--charset)")
                 .arg(title, QString::fromLatin1(m_task.Options.FallbackCharset)));
  }

  void Fail(int exitCode, const QString& name, const QString& reason) {
    Complain(m_console, QStringLiteral("%1: %2").arg(name, reason));
    m_exitCode = std::max(m_exitCode, exitCode);
  }

  void Sum(const ImportSummary& summary) {
    ++m_files;
    m_sum.New += summary.New;
    m_sum.Changed += summary.Changed;
    m_sum.Same += summary.Same;
    m_sum.Unreadable += summary.Unreadable;
  }

  StoreProvider& m_store;
  const ImportTask& m_task;
  const Console& m_console;
  ImportSummary m_sum;  // its counts
  int m_files = 0;      // that could be opened
  bool m_isStopped = false;
  int m_exitCode = kExitDone;
};

}  // namespace

int ImportFiles(const ImportTask& task, const Console& console) {
  PimStore store(task.Where.StoreFile);
  const StoreOpening opening(store, task.Where.StoreFile);
  if (!opening.Succeeded()) return Fail(console, opening.Problem());
  FileImport import(store, task, console);
  import.TakeAll();
  return import.Finish();
}

}  // namespace quill
