// The program's start: a command without a window, or the window.
#include <QCoreApplication>
#include <QFile>

#include <cstdio>

#include <unistd.h>

#include "app/ui/RunShell.h"
#include "cli/RunCommand.h"
#include "cli/WindowStart.h"

namespace {

QStringList WordsOf(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words.append(QFile::decodeName(argv[i]));
  return words;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace quill;
  QTextStream out(stdout);
  QTextStream err(stderr);
  const Console console{out, err, ::isatty(STDERR_FILENO) == 1};
  const CommandLine line = ParseCommandLine(WordsOf(argc, argv));
  const auto environment = QProcessEnvironment::systemEnvironment();

  int shellArgc = argc > 0 ? 1 : 0;  // the words are taken: Qt's own options are not ours
  WindowStart start;
  {
    const QCoreApplication application(shellArgc, argv);
    if (line.Kind != CommandKind::Window) return RunCommand(line, environment, console);
    start = StartWindow(line, environment, console);
  }
  if (!start.Running) return start.ExitCode;
  return start.Running->ExitCode(RunShell(*start.Running, shellArgc, argv));
}
