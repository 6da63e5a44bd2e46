#include "exchange/CardMerge.h"

#include <algorithm>

#include "exchange/CardMapper.h"
#include "exchange/CardMatch.h"
#include "exchange/CardParts.h"
#include "exchange/CardSlots.h"
#include "exchange/CarriedJoin.h"

namespace quill {

namespace {

// Numbers and e-mail addresses that the record has, in whichever field.
void TakeKnownTexts(CardPool& pool, const ContactRecord& record) {
  const QStringList numbers = NumberKeys(record);
  for (const CardProperty* tel : pool.All(u"TEL")) {
    if (MayHaveField(*tel) && numbers.contains(NumberKey(NumberOf(*tel)))) pool.Take(*tel);
  }
  const QStringList emails = EmailKeys(record);
  for (const CardProperty* email : pool.All(u"EMAIL")) {
    if (emails.contains(EmailKey(TextOf(*email)))) pool.Take(*email);
  }
}

bool HasAddress(const QStringList& texts, const ContactRecord& record) {
  return std::any_of(kCardAddresses.begin(), kCardAddresses.end(), [&](const CardAddressRow& row) {
    return HasAll(AddressFieldsOf(row), texts, record);
  });
}

// However it is written there, and whatever its group is called now.
bool IsCarried(const CardProperty& property, const QString& lines) {
  return JoinCarriedLines(lines, CarriedLine(property) + u'\n') == lines;
}

void JoinAddresses(CardPool& pool, ContactItem& contact) {
  ContactRecord& record = contact.Record;
  for (const CardProperty* address : pool.All(u"ADR")) {
    const QStringList texts = AddressTexts(*address);
    const AddressFields fields = AddressFieldsOf(AddressRowOf(*address));
    const bool isKnown = HasAddress(texts, record);
    // One that found no place before goes to none now.
    const bool isMore = HasOne(fields, texts, record) && Agree(fields, texts, record) &&
                        !IsCarried(*address, contact.CarriedLines);
    if (!isKnown && isMore) FillEmpty(fields, texts, record);
    if (isKnown || isMore) pool.Take(*address);
  }
}

}  // namespace

ContactItem MergedContact(const ContactItem& stored, const Card& card) {
  CardPool pool(card);
  // The name parts say it, wherever they go.
  if (SaysFormattedName(card)) pool.Take(*pool.First(u"FN"));
  ContactItem merged = stored;
  TakeKnownTexts(pool, merged.Record);
  JoinAddresses(pool, merged);
  QString rest;
  if (const CardProperty* spokenName = PlaceProperties(pool, merged)) {
    // Of the name that the card gives, which may be another one.
    const ContactItem own = ContactFromCard(card).value_or(ContactItem());
    rest = CarriedSpokenName(*spokenName, own.Record);
  }
  merged.CarriedLines = JoinCarriedLines(stored.CarriedLines, rest + pool.Rest());
  return merged;
}

}  // namespace quill
