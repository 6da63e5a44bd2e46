// How long a store of made-up contacts takes to show its lists.
#pragma once

#include "Ruler.h"
#include "store/StoreProvider.h"

namespace quill::bench {

// Adds its rows to the ruler and runs them. A thousand contacts at least, whose Oids begin at 1
// without a gap. Sets two units:
//   P  reading 14 contacts' list rows by their Oids, always the same 14, so that they are at hand
//   R  the same of 14 contacts anywhere in the store, others each time
// Building begins with the same contacts again and again and is given in P. Who scrolls or searches
// sees contacts that were not looked at before, which is given in R.
void MeasureReading(ContactsFolder& folder, Ruler& ruler);

}  // namespace quill::bench
