// quill import: the contacts of vCard files into the store.
#pragma once

#include <functional>

#include "cli/Verb.h"
#include "exchange/CardImport.h"

namespace quill {

// Of the verb's row.
inline constexpr QStringView kDuplicateOption = u"--on-duplicate";
inline constexpr QStringView kCharsetOption = u"--charset";
inline constexpr QStringView kRejectsOption = u"--rejects";

struct ImportTask {
  Places Where;           // its folders exist
  QStringList Arguments;  // as of the verb
  ImportOptions Options;  // without Continue
  // Asked now and then, with the file at hand; false stops the import and the files after it.
  std::function<bool(const QString& file, const ImportProgress& progress)> Continue = {};
};

// Each argument is a file, a folder whose card files are meant (CardFilesOf), or "-" for standard
// input. A file that cannot be read is told and the next one taken; of each the report is printed
// (ReportImport), of several their sum. Answers the worst of the files' exit codes.
int ImportFiles(const ImportTask& task, const Console& console);

// The same as a command. With a rejects file the cards that could not be read stand there
// afterwards; when there is none, the file is not touched.
int RunImport(const VerbCall& call, const Console& console);

}  // namespace quill
