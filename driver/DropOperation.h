// Taking an item out of a folder of the store, alike for contacts and appointments.
#pragma once

#include "driver/Arguments.h"
#include "driver/StoreNotice.h"

namespace quill::driver {

template <typename Folder>
Answer DropItem(const QJsonObject& arguments, Folder& folder, OperationContext& context) {
  const std::optional<int> oid = WholeNumber(arguments, u"oid");
  if (!oid) return Refusal(kMalformed);
  if (!folder.Remove(*oid)) return Refusal(kUnknown);
  NotifyUnlessQuiet(arguments, context);
  return Done();
}

}  // namespace quill::driver
