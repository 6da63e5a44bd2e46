#include "cli/RunCommand.h"

#include "cli/PrepareHome.h"

namespace quill {
namespace {

int RunCalledVerb(const CommandLine& line, const QProcessEnvironment& environment,
                  const Console& console) {
  const auto places = PrepareHome(line, environment, console);
  if (!places) return kExitFailed;
  return line.Called->Run({*places, line.Arguments, line.VerbOptions}, console);
}

int Run(const CommandLine& line, const QProcessEnvironment& environment, const Console& console) {
  switch (line.Kind) {
    case CommandKind::RunVerb:
      return RunCalledVerb(line, environment, console);
    case CommandKind::Help:
      console.Out << HelpText(line.Called);
      return kExitDone;
    case CommandKind::Version:
      console.Out << "Quill (Quillbook) " QUILL_VERSION "\n";
      return kExitDone;
    case CommandKind::Wrong:
    case CommandKind::Window:
      break;
  }
  Complain(console, line.Problem);
  console.Err << "quill --help says what there is" << Qt::endl;
  return kExitFailed;
}

}  // namespace

int RunCommand(const CommandLine& line, const QProcessEnvironment& environment,
               const Console& console) {
  const int exitCode = Run(line, environment, console);
  console.Out.flush();
  // Who failed has said why.
  if (exitCode == kExitFailed || console.Out.status() == QTextStream::Ok) return exitCode;
  return Fail(console, QStringLiteral("the output cannot be written"));
}

}  // namespace quill
