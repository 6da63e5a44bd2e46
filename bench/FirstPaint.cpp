// quill-first-paint HOME: starts the whole program on a home, prints how long it took from main to
// the first painted window and what memory it holds then, and ends.
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QTextStream>
#include <QTimer>

#include "ProcessMemory.h"
#include "app/Program.h"
#include "app/ui/RunShell.h"

namespace {

struct StartWatch {
  QElapsedTimer SinceMain;
  double FirstPaint = 0;  // milliseconds
};
StartWatch g_watch;

void Report() {
  QTextStream(stdout) << "main to first paint: " << g_watch.FirstPaint << " ms\n"
                      << "resident: "
                      << quill::bench::MemoryLine(QStringLiteral("/proc/self/status"), "VmRSS")
                      << "\nproportional: "
                      << quill::bench::MemoryLine(QStringLiteral("/proc/self/smaps_rollup"), "Pss")
                      << '\n';
  QApplication::exit(0);
}

class PaintWatch : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Paint || m_seen) return false;
    m_seen = true;
    QTimer::singleShot(0, qApp, [] {  // by then the whole window is on its surface
      g_watch.FirstPaint = double(g_watch.SinceMain.nsecsElapsed()) / 1e6;
      Report();
    });
    return false;
  }

 private:
  bool m_seen = false;
};

void WatchApplication() {
  auto* const watch = new PaintWatch;
  watch->setParent(QCoreApplication::instance());
  QCoreApplication::instance()->installEventFilter(watch);
}

}  // namespace

int main(int argc, char** argv) {
  g_watch.SinceMain.start();
  if (argc != 2) {
    QTextStream(stderr) << "usage: quill-first-paint HOME\n";
    return 2;
  }
  quill::ProgramOptions options;
  options.Where = quill::HomePlaces(QFile::decodeName(argv[1]), QProcessEnvironment());
  const QString problem = quill::MakeFolders(options.Where);
  if (!problem.isEmpty()) {
    QTextStream(stderr) << problem << '\n';
    return 2;
  }
  quill::Program program(std::move(options));
  qAddPreRoutine(WatchApplication);
  int shellArgc = 1;
  return quill::RunShell(program, shellArgc, argv);
}
