// Whether one contact, read already, satisfies a restriction. Collections are asked of the store,
// which answers from its index; both compare as Collation.h says.
#pragma once

#include "store/ContactRecord.h"
#include "store/Restriction.h"

namespace quill {

// A restriction on Subject, which no contact has, is satisfied by none.
bool SatisfiesRestriction(const ContactRecord& record, const RestrictionNode& node);

}  // namespace quill
