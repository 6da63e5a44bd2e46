// Spouse, children, birthday and anniversary of a card: programs write them under many names. What
// has no place in the record stays in the pool.
#pragma once

#include "exchange/CardPool.h"
#include "store/ContactRecord.h"

namespace quill {

void PlaceRelatives(CardPool& pool, ContactRecord& record);
void PlaceDays(CardPool& pool, ContactRecord& record);

}  // namespace quill
