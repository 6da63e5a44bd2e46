// What OK on a record sheet does, and what is kept until then.
#pragma once

#include "editor/Draft.h"
#include "editor/SheetRecord.h"
#include "settings/Settings.h"

namespace quill {

enum class SheetOutcome {
  Written,
  NothingToSave,
  KeptAsDraft,  // not worth writing but not empty, or the store could not write it
  NotKept,      // nor could a draft be kept
};

// Writes what was entered, with the ink notes in g_contactInk, over the sheet's contact as it is now,
// and forgets the draft that it came from. The notes are freed, unless nothing was kept. Says nothing to the user: failures go to the
// log.
SheetOutcome SaveSheet(const SheetRecord& sheet, const Settings& settings);

// What was entered so far, to be kept against a crash; nothing when it is as it was at opening.
std::optional<Draft> EnteredSoFar(const SheetRecord& sheet, const Settings& settings);

}  // namespace quill
