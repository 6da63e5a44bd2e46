// The list's filter as a restriction text for the store: FileAs by name, CompanyName by company.
#pragma once

#include <QString>

#include "list/ListState.h"

namespace quill {

// Empty when everything is to be listed. A filter by range with neither an index range nor a search
// lists everything, too.
QString RestrictionText(const ListState& list);

// Where the texts that begin with this one end: the text with its last UTF-16 unit raised by one.
// After "z" that is "{": the store compares in upper case, so a search for z also lists names that
// begin with one of the signs between Z and { - intended. Where that case makes the raised unit
// sort before the last one (a small Cyrillic letter, a backquote), the end is the next unit that
// does not.
QString PrefixEnd(QString prefix);

}  // namespace quill
