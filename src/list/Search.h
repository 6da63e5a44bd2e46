// The search by the first letters.
#pragma once

#include <QString>

#include "list/ListState.h"

namespace quill {

// Makes the search the list's filter, instead of a chosen category and index button, and goes to
// its first row; the page is not built. An empty text clears the filter.
void SearchList(ListState& list, const QString& text);

}  // namespace quill
