// How long a store of made-up contacts takes to keep what is written, durably.
#pragma once

#include <QString>

#include "Ruler.h"
#include "store/StoreProvider.h"

namespace quill::bench {

// Adds its rows to the ruler and runs them. Sets the unit C: one durable commit, CommitBaseline.h,
// in a file beside the store. Contacts are added, renamed and deleted; at the end the store holds
// those from before under their names, and its journal knows the deleted ones.
void MeasureWriting(StoreProvider& store, const QString& folder, Ruler& ruler);

}  // namespace quill::bench
