#include "cli/ExportVerb.h"

#include <array>

#include "app/CardFileExport.h"

namespace quill {
namespace {

struct VersionRow {
  QStringView Number;
  CardVersion Version;
};
constexpr std::array kVersions{VersionRow{u"2.1", CardVersion::V21},
                               VersionRow{u"3.0", CardVersion::V30},
                               VersionRow{u"4.0", CardVersion::V40}};

ExportOptions OptionsOf(const VerbCall& call) {
  ExportOptions options;
  for (const VersionRow& row : kVersions) {
    if (row.Number == ValueOf(call, kVersionOption)) options.Version = row.Version;
  }
  options.Category = ValueOf(call, kCategoryOption);
  options.Contact = ValueOf(call, kContactOption);
  return options;
}

// An empty name would be taken for none.
QString ProblemOf(const VerbCall& call) {
  for (const QStringView option : {kCategoryOption, kContactOption}) {
    if (IsGiven(call, option) && ValueOf(call, option).isEmpty())
      return QStringLiteral("%1 needs a name").arg(option);
  }
  return {};
}

}  // namespace

int RunExport(const VerbCall& call, const Console& console) {
  const QString problem = ProblemOf(call);
  if (!problem.isEmpty()) return Fail(console, problem);
  return ExportFile({call.Where, call.Arguments.first(), OptionsOf(call)}, console);
}

}  // namespace quill
