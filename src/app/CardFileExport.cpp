#include "app/CardFileExport.h"

#include <QFileInfo>
#include <QSaveFile>

#include <memory>

#include "app/ProgressLine.h"
#include "app/StoreOpening.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

constexpr QStringView kStandardOutput = u"-";

// Whole cards as text of the console.
class ConsoleDevice : public QIODevice {
 public:
  explicit ConsoleDevice(QTextStream& out) : m_out(out) {}

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override {
    m_out << QString::fromUtf8(data, size) << Qt::flush;
    if (m_out.status() == QTextStream::Ok) return size;
    setErrorString(QStringLiteral("it cannot be written to"));
    return -1;
  }

 private:
  QTextStream& m_out;
};

// Null when it cannot be written to; the console was told why.
std::unique_ptr<QIODevice> OpenTarget(const QString& name, const Console& console) {
  std::unique_ptr<QIODevice> target;
  const QFileInfo info(name);
  if (name == kStandardOutput) {
    target = std::make_unique<ConsoleDevice>(console.Out);
  } else if (info.exists() && !info.isFile()) {
    target = std::make_unique<QFile>(name);  // nothing could take the place of a pipe
  } else {
    target = std::make_unique<QSaveFile>(name);
  }
  const QString reason = info.isDir() ? QStringLiteral("is a folder") : QString();
  if (reason.isEmpty() && target->open(QIODevice::WriteOnly)) return target;
  Complain(console,
           QStringLiteral("%1: %2").arg(name, reason.isEmpty() ? target->errorString() : reason));
  return nullptr;
}

// Whether all of it is where it belongs now.
bool Finish(QIODevice& target) {
  if (auto* whole = qobject_cast<QSaveFile*>(&target)) return whole->flush() && whole->commit();
  auto* file = qobject_cast<QFile*>(&target);
  return !file || file->flush();
}

ExportSummary Export(PimStore& store, QIODevice& target, const ExportTask& task,
                     const Console& console) {
  ProgressLine line(console);
  ExportOptions options = task.Options;
  options.Continue = [&](int done, int count) {
    line.Show(QStringLiteral("%1 of %2 contacts").arg(done).arg(count));
    return !task.Options.Continue || task.Options.Continue(done, count);
  };
  ExportSummary summary = ExportCards(store, target, options);
  const bool isWhole = summary.End == ExportEnd::All && summary.Written > 0;
  if (isWhole && !Finish(target)) summary.End = ExportEnd::DeviceFailed;
  return summary;
}

QString NobodyText(const ExportOptions& options) {
  const bool choice =
      !options.Category.isEmpty() || !options.Contact.isEmpty() || !options.Restriction.isEmpty();
  return choice ? QStringLiteral("there are no such contacts")
                : QStringLiteral("there are no contacts yet");
}

int Report(const ExportTask& task, const ExportSummary& summary, const QIODevice& target,
           const Console& console) {
  const QString& name = task.File;
  if (summary.End == ExportEnd::Stopped) {
    Complain(console, QStringLiteral("%1: stopped; nothing was written").arg(name));
    return kExitPartly;
  }
  if (summary.End != ExportEnd::All) {
    const QString reason =
        summary.End == ExportEnd::StoreFailed ? summary.StoreError : target.errorString();
    Complain(console, QStringLiteral("%1: %2").arg(name, reason));
    return kExitFailed;
  }
  if (summary.Written == 0) {
    Complain(console, NobodyText(task.Options));
    return kExitPartly;
  }
  QTextStream& told = name == kStandardOutput ? console.Err : console.Out;
  told << name << ": " << summary.Written << (summary.Written == 1 ? " contact" : " contacts")
       << Qt::endl;
  return kExitDone;
}

}  // namespace

int ExportFile(const ExportTask& task, const Console& console) {
  PimStore store(task.Where.StoreFile, {.Access = StoreAccess::AtLeastReading});
  const StoreOpening opening(store, task.Where.StoreFile);
  if (!opening.Succeeded()) return Fail(console, opening.Problem());
  const auto target = OpenTarget(task.File, console);
  if (!target) return kExitFailed;
  return Report(task, Export(store, *target, task, console), *target, console);
}

}  // namespace quill
