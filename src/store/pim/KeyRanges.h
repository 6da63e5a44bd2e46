// A restriction as ranges of the list index, where it has that shape: any mix of comparisons of the
// collection's own name (FileAs, or CompanyName in the order by company; Subject for appointments),
// together with at most one choice of categories.
#pragma once

#include <optional>
#include <vector>

#include "store/ContactCollection.h"
#include "store/Restriction.h"
#include "store/pim/EntryKeys.h"

namespace quill {

// In the order of the keys, apart from each other. Nothing for a restriction of another shape.
using KeyRanges = std::vector<KeyRange>;

std::optional<KeyRanges> ContactRanges(const ContactCollection& collection);
// The same for a choice of several categories: the ranges of each, in the order of the choice. A
// contact of two of them stands in both, under keys that are equal after PrefixSize bytes.
struct CategoryRanges {
  KeyRanges Ranges;
  qsizetype PrefixSize;
};
std::optional<std::vector<CategoryRanges>> SeveralCategoryRanges(
    const ContactCollection& collection);
std::optional<KeyRanges> SubjectRanges(const RestrictionNode& restriction);

}  // namespace quill
