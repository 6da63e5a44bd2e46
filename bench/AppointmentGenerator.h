// Made-up appointments with contacts: one for twenty contacts, though two or three may be with the
// same one. Some recur every week. All of them may be saved.
#pragma once

#include <vector>

#include "Dice.h"
#include "store/AppointmentItem.h"

namespace quill::bench {

// The same seed gives the same appointments.
class AppointmentGenerator {
 public:
  explicit AppointmentGenerator(unsigned seed) : m_dice(seed) {}

  // Those with the next contact, mostly none.
  std::vector<AppointmentItem> Next(const QString& fileAs);

 private:
  AppointmentItem Make(const QString& fileAs);

  Dice m_dice;
};

}  // namespace quill::bench
