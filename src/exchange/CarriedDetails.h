// What a contact holds that its record sheet has no row for, to be read: the fields that no edit
// writes back, and what an imported card held beyond a contact.
#pragma once

#include <QString>

#include <vector>

#include "store/StoreProvider.h"

namespace quill {

struct CarriedDetail {
  QString Label;  // "Note", "Telephone (work, isdn)", the group's own label, or a property's name
  QString Text;   // may have several lines; bytes are only named: "JPEG picture, 12 KB"

  bool operator==(const CarriedDetail&) const = default;
};

// The fields first, in the record's order, then the lines in theirs. What is empty is left out, and
// so is what would only repeat how a card was made. Of a card within the card all lines are one
// detail.
std::vector<CarriedDetail> CarriedDetails(const ContactItem& item);

}  // namespace quill
