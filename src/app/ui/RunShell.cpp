#include "app/ui/RunShell.h"

#include <QApplication>

#include "app/Program.h"
#include "app/ui/ContactsApp.h"
#include "platform/Services.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

ShellStart FirstStart(const Program& program) {
  ShellSettings settings = ReadShellSettings(*g_services.Registry);
  const auto asked = program.AskedScale();
  if (asked) settings.WindowScale = *asked;
  return {settings.WindowScale, asked ? ScaleOrigin::Asked : ScaleOrigin::Remembered, settings};
}

void PrepareEnvironment(Scale scale) {
  qputenv("QT_SCALE_FACTOR", ScaleText(scale).toLatin1());
  // Raster windows need no graphics buffers: without them a start under Wayland is twice as fast.
  if (qEnvironmentVariableIsEmpty("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"))
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
}

// A pen's moves are its line: none may be left out. Set before the application is there, it would
// not last under X11.
void SendEveryMove() {
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);
}

ShellEnd RunOnce(Program& program, const ShellStart& start, int& argc, char** argv) {
  PrepareEnvironment(start.At);
  const QApplication application(argc, argv);
  SendEveryMove();
  return CContactsApp(program, start).Run();
}

}  // namespace

int RunShell(Program& program, int& argc, char** argv) {
  ShellStart start = FirstStart(program);
  ShellEnd end = RunOnce(program, start, argc, argv);
  while (end.Next) {
    start = *end.Next;
    end = RunOnce(program, start, argc, argv);
  }
  CloseSession();
  return end.ExitCode;
}

}  // namespace quill
