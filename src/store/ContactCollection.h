// A collection of contacts as a value: an order and a restriction, no items. It stays valid
// whatever happens to the store; what it holds is asked of the contacts folder.
#pragma once

#include <memory>

namespace quill {

struct RestrictionNode;

enum class ContactOrder { ByFileAs, ByCompany };

struct ContactCollection {
  ContactOrder Order = ContactOrder::ByFileAs;
  std::shared_ptr<const RestrictionNode> Restriction;  // null: every contact
};

}  // namespace quill
