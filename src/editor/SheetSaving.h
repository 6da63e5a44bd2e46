// What OK on a record sheet does, and what is kept until then.
#pragma once

#include "editor/Draft.h"
#include "editor/SheetRecord.h"
#include "settings/Settings.h"

namespace quill {

enum class SheetOutcome {
  Written,
  NothingToSave,  // nor anything to keep, also where the store could not write
  KeptAsDraft,    // entered, but not worth writing, or the store could not write it
  KeptOfDeleted,  // as a draft: meanwhile the contact was deleted
  NotKept,        // nor could a draft be kept
};

// Writes the sheet's contact with the ink notes in g_contactInk, which are freed unless nothing was
// kept, and forgets the draft that it came from. Of an existing contact only what was entered takes
// the place of what the store holds by now. Says nothing to the user: failures go to the log.
SheetOutcome SaveSheet(const SheetRecord& sheet, const Settings& settings);

// What was entered so far, to be kept against a crash; nothing when it is as it was at opening.
std::optional<Draft> EnteredSoFar(const SheetRecord& sheet, const Settings& settings);

}  // namespace quill
