#include "cli/ImportVerb.h"

#include <QLocale>

#include "app/CardFileImport.h"
#include "app/CardFiles.h"
#include "cli/RejectsFile.h"

namespace quill {
namespace {

OnDuplicate DuplicatesOf(const VerbCall& call) {
  const QString word = ValueOf(call, kDuplicateOption);
  if (word == u"add") return OnDuplicate::Add;
  return word == u"skip" ? OnDuplicate::Skip : OnDuplicate::Merge;
}

QByteArray CharsetOf(const VerbCall& call) {
  return IsGiven(call, kCharsetOption) ? ValueOf(call, kCharsetOption).toLatin1()
                                       : FallbackCharset(QLocale::system());
}

QString ProblemOfRejects(const QStringList& arguments, RejectsFile& rejects) {
  for (const QString& argument : arguments) {
    if (rejects.IsOneOf(CardFilesOf(argument)))
      return QStringLiteral("%1 is to be brought in itself").arg(rejects.Path());
  }
  return rejects.Open() ? QString() : rejects.Problem();
}

}  // namespace

int RunImport(const VerbCall& call, const Console& console) {
  ImportTask task{.Where = call.Where, .Arguments = call.Arguments, .Options = {}};
  task.Options.Duplicates = DuplicatesOf(call);
  task.Options.FallbackCharset = CharsetOf(call);
  if (!IsGiven(call, kCharsetOption)) task.Charset = CharsetOrigin::Guessed;
  if (!IsKnownCharset(task.Options.FallbackCharset))
    return Fail(console,
                QStringLiteral("there is no character set %1").arg(ValueOf(call, kCharsetOption)));
  RejectsFile rejects(ValueOf(call, kRejectsOption));
  const QString problem = ProblemOfRejects(call.Arguments, rejects);
  if (!problem.isEmpty()) return Fail(console, problem);
  task.Options.Rejects = rejects.Device();
  const int exitCode = ImportFiles(task, console);
  return rejects.Finish() ? exitCode : Fail(console, rejects.Problem());
}

}  // namespace quill
