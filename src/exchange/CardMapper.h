// What a card means: the contact that is made from its properties.
#pragma once

#include <QString>

#include <optional>

#include "exchange/CardPool.h"
#include "exchange/CardReader.h"
#include "store/StoreProvider.h"

namespace quill {

// Every field of the record that the card has something for, the UID and the ink notes; what has no
// field is carried as it came. Nothing when the card holds no field at all.
std::optional<ContactItem> ContactFromCard(const Card& card);

// The same into a contact that may hold something: fields that have a text keep it, empty ones are
// filled, categories and children are joined. What the contact holds then is taken from the pool,
// the rest stays there. Returns the card's FN, which is taken, when the contact does not say it.
const CardProperty* PlaceProperties(CardPool& pool, ContactItem& item);

// Whether the card's FN only repeats its name parts, company or filing name.
bool SaysFormattedName(const Card& card);

// The name as it is spoken: "Title First Middle Last Suffix" of what exists, else the company, else
// FileAs. This is what a card made from the record calls its person.
QString FormattedName(const ContactRecord& record);

// The line that carries an FN, which has no field: it goes out again as long as the contact's name
// is that of the record.
QString CarriedSpokenName(const CardProperty& property, const ContactRecord& record);

// Tells one formatted name from another, in a few letters.
QString NameMark(const ContactRecord& record);

}  // namespace quill
