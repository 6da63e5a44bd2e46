// The contacts of card files into the store of a home: the work of the verb and of the window.
#pragma once

#include <QStringList>

#include <functional>

#include "app/Console.h"
#include "app/Places.h"
#include "exchange/CardImport.h"

namespace quill {

// What may be read. A pipe or a device may keep its reader waiting for ever.
enum class ImportSources { Any, PlainFiles };

// Who says that undeclared text is in the fallback character set: somebody, or only we.
enum class CharsetOrigin { Chosen, Guessed };

struct ImportTask {
  Places Where;           // its folders exist
  QStringList Arguments;  // each a file, a folder (CardFilesOf) or "-" for standard input
  ImportOptions Options;  // without Continue
  ImportSources Sources = ImportSources::Any;
  CharsetOrigin Charset =
      CharsetOrigin::Chosen;  // of a guessed one that was needed the user is told
  // Asked now and then, with the file at hand; false stops the import and the files after it.
  std::function<bool(const QString& file, const ImportProgress& progress)> Continue = {};
};

// A file that cannot be read is told and the next one taken; of each the report is printed
// (ReportImport), of several their sum. Answers the worst of the files' exit codes.
int ImportFiles(const ImportTask& task, const Console& console);

}  // namespace quill
