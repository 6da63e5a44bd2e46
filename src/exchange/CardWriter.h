// The card that is made from a contact: the way back from CardMapper.
#pragma once

#include <QByteArray>

#include "exchange/CardVersion.h"
#include "store/StoreProvider.h"

namespace quill {

// From BEGIN to END, in UTF-8 with CRLF. Read again, it gives the same contact, but for what no
// card can hold: NUL, halves of characters, kinds of line ends, and a blank number or address.
QByteArray WriteCard(const ContactItem& item, CardVersion version);

}  // namespace quill
