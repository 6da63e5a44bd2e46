// Whether one contact satisfies a restriction, looked at by itself: what the store's index answers
// is held against it. Both compare as Collation.h says.
#pragma once

#include "store/ContactRecord.h"
#include "store/Restriction.h"

namespace quill {

// A restriction on Subject, which no contact has, is satisfied by none.
bool SatisfiesRestriction(const ContactRecord& record, const RestrictionNode& node);

}  // namespace quill
