// quill import: the contacts of vCard files into the store (ImportFiles).
#pragma once

#include "cli/Verb.h"

namespace quill {

// Of the verb's row.
inline constexpr QStringView kDuplicateOption = u"--on-duplicate";
inline constexpr QStringView kCharsetOption = u"--charset";
inline constexpr QStringView kRejectsOption = u"--rejects";

// With a rejects file the cards that could not be read stand there afterwards; when there is none,
// the file is not touched.
int RunImport(const VerbCall& call, const Console& console);

}  // namespace quill
