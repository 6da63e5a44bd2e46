// What a person reads of a pushed card before it is taken. The texts are the peer's: they stay one
// line without anything that moves the text around it.
#pragma once

#include <QString>

#include "infrared/ObexTransport.h"

namespace quill {

struct OfferText {
  QString Peer;          // what the peer calls itself, or its address
  QString Address = {};  // its address behind a name; else empty
  QString Card;          // whose card it is, and how many more there are
};

OfferText DescribeOffer(const ObexOffer& offer);

}  // namespace quill
