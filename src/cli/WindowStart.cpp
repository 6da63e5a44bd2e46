#include "cli/WindowStart.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

#include "app/MemoTaking.h"
#include "app/RequestChannel.h"
#include "cli/AskedContact.h"
#include "cli/ImportVerb.h"
#include "cli/PrepareHome.h"

namespace quill {
namespace {

bool HasDisplay(const QProcessEnvironment& environment) {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "QT_QPA_PLATFORM"}) {
    if (!environment.value(QString::fromLatin1(name)).isEmpty()) return true;
  }
  return false;
}

// As one word to a shell.
QString Quoted(QString text) {
  return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

void ExplainMissingDisplay(const CommandLine& line, const Console& console) {
  Complain(console, QStringLiteral("there is no display to open a window on"));
  const QString home = line.Home ? u" --home "_qs + Quoted(*line.Home) : QString();
  console.Err
      << "A picture of it all the same, by the program without a screen:\n\n"
         "  echo '{\"op\":\"screenshot\",\"file\":\"quill.png\",\"scale\":2}' | quill-driver"
      << home
      << "\n\nOr a screen that is not there, seen through ssh. On this machine:\n\n"
         "  Xvfb :5 -screen 0 1024x800x24 -nolisten tcp &\n"
         "  DISPLAY=:5 quill"
      << home
      << " &\n"
         "  x11vnc -display :5 -localhost -rfbport 5905 -forever\n\n"
         "and on yours:\n\n"
         "  ssh -L 5905:localhost:5905 THIS-MACHINE\n"
         "  vncviewer localhost:5905\n\n"
         "Commands such as \"quill import FILE\" need no display."
      << Qt::endl;
}

// A first word that is no file is more likely a command mistyped: said before anything else
// happens. Later ones are told by the import, after it has brought in the others; it knows nothing
// of memos.
bool FilesExist(const CommandLine& line, const Console& console) {
  for (const QString& file : line.Arguments) {
    const bool isImported = file != line.Arguments.first() && !IsMemoFile(file);
    if (isImported || QFileInfo::exists(file)) continue;
    Complain(console, QStringLiteral("there is neither a file nor a command %1").arg(file));
    return false;
  }
  return true;
}

// Memo files are for the window, which is asked to open them.
CommandLine WithMemosAsked(CommandLine line) {
  QStringList memos;
  for (const QString& file : line.Arguments)
    if (IsMemoFile(file)) memos.append(QFileInfo(file).absoluteFilePath());
  line.Arguments.removeIf(IsMemoFile);
  if (!memos.isEmpty()) line.FirstRequest = Request{RequestKind::Open, {}, memos};
  return line;
}

// True also when there was nothing to bring in.
bool BringIn(const CommandLine& line, const Places& places, const Console& console) {
  if (line.Arguments.isEmpty()) return true;
  return RunImport({places, line.Arguments, {}}, console) != kExitFailed;
}

QString RefusalText(const Request& request) {
  switch (request.Kind) {
    case RequestKind::Activate:
      return QStringLiteral("the open window could not come to the front");
    case RequestKind::Show:
      return QStringLiteral("there is no contact \"%1\"").arg(request.Text);
    case RequestKind::New:
    case RequestKind::Open:
      break;
  }
  return QStringLiteral("the open window could not do it");
}

int HandOver(const Request& request, RequestOutcome outcome, const Console& console) {
  if (outcome == RequestOutcome::Done) return kExitDone;
  if (outcome == RequestOutcome::Unreached) {
    Complain(console, QStringLiteral("a window of this home is open, but does not answer"));
    return kExitFailed;
  }
  Complain(console, RefusalText(request));
  return kExitPartly;
}

// What was asked of a new window alone.
int WithoutScale(int exitCode, const Console& console) {
  Complain(console, QStringLiteral("the window is open already and keeps its scale"));
  return std::max(exitCode, kExitPartly);
}

WindowStart Ended(int exitCode) { return {nullptr, exitCode}; }

WindowStart OpenOrHandOver(const CommandLine& line, const Places& places, const Console& console) {
  auto lock = std::make_unique<InstanceLock>(places.StateFolder);
  LockOutcome taken = lock->Take();
  RequestOutcome sent = RequestOutcome::Unreached;
  const Request request = line.FirstRequest.value_or(Request());
  if (taken == LockOutcome::HeldByOther) {
    sent = SendRequest(RequestSocket(places), request);
    // Nobody there may mean that the window was closing, and its lock is free now.
    if (sent == RequestOutcome::Unreached) taken = lock->Take();
  }
  if (taken == LockOutcome::HeldByOther) {
    const int exitCode = HandOver(request, sent, console);
    return Ended(line.AskedScale ? WithoutScale(exitCode, console) : exitCode);
  }
  if (taken == LockOutcome::Failed) {
    Complain(console, lock->Reason());
    return Ended(kExitFailed);
  }
  ProgramOptions options;
  options.Where = places;
  options.AskedScale = line.AskedScale;
  options.Lock = std::move(lock);
  options.FirstRequest = line.FirstRequest;
  return {std::make_unique<Program>(std::move(options)), kExitDone};
}

WindowStart StartInHome(CommandLine line, const QProcessEnvironment& environment,
                        const Console& console) {
  const auto places = PrepareHome(line, environment, console);
  if (!places || !BringIn(line, *places, console)) return Ended(kExitFailed);
  if (line.FirstRequest) line.FirstRequest = WithWholeName(*line.FirstRequest, *places, console);
  return OpenOrHandOver(line, *places, console);
}

WindowStart Telling(const QString& problem, const Places& places) {
  ProgramOptions options;
  options.Where = places;
  options.Problem = problem;
  return {std::make_unique<Program>(std::move(options)), kExitFailed};
}

}  // namespace

WindowStart StartWindow(const CommandLine& words, const QProcessEnvironment& environment,
                        const Console& console) {
  if (!FilesExist(words, console)) return Ended(kExitFailed);
  const CommandLine line = WithMemosAsked(words);
  if (!HasDisplay(environment)) {
    ExplainMissingDisplay(line, console);
    return Ended(kExitFailed);
  }
  if (console.IsTerminal) return StartInHome(line, environment, console);
  QString messages;
  QTextStream err(&messages);
  WindowStart start = StartInHome(line, environment, {console.Out, err});
  console.Err << messages << Qt::flush;
  if (start.Running || start.ExitCode != kExitFailed) return start;
  return Telling(messages, PlacesOf(line, environment));
}

}  // namespace quill
