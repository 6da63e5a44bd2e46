#include "infrared/OfferText.h"

#include "exchange/ObexObject.h"

namespace quill {

namespace {

QString FirstOf(const QString& text, const QString& other, QStringView neither) {
  if (!text.isEmpty()) return text;
  return other.isEmpty() ? neither.toString() : other;
}

}  // namespace

OfferText DescribeOffer(const ObexOffer& offer) {
  const QString name = ObexLabel(offer.PeerName);
  const QString address = ObexLabel(offer.Peer);
  OfferText text;
  text.Peer = FirstOf(name, address, u"an unknown device");
  if (!name.isEmpty()) text.Address = address;
  text.Card = FirstOf(ObexLabel(offer.Person), ObexLabel(offer.Label), u"without a name");
  if (offer.Cards > 1) text.Card += QStringLiteral(" and %1 more").arg(offer.Cards - 1);
  return text;
}

}  // namespace quill
