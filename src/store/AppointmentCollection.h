// A collection of appointments as a value: a restriction, no items. Its order is that of the Oids.
// It stays valid whatever happens to the store; what it holds is asked of the calendar folder.
#pragma once

#include <memory>

namespace quill {

struct RestrictionNode;

struct AppointmentCollection {
  std::shared_ptr<const RestrictionNode> Restriction;  // null: every appointment
};

}  // namespace quill
