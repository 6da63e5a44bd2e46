// How to reach a contact, as labelled lines: what its summary card says.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

#include "store/ContactRecord.h"

namespace quill {

inline constexpr QStringView kNoContactInformation = u"(No contact information)";
inline constexpr int kCardAddressHeight = 4;  // lines that an address takes

struct SummaryLine {
  QStringView Label;
  QString Text;
  int Height = 1;  // in lines

  bool operator==(const SummaryLine&) const = default;
};

// The lines that have a text, in their order: telephones, fax, e-mail, then one address, the one at
// work if there is one. Empty when there is nothing to show.
std::vector<SummaryLine> SummaryLines(const ContactRecord& record);

}  // namespace quill
