// A card that comes for a contact which is there already.
#pragma once

#include "exchange/CardReader.h"
#include "store/StoreProvider.h"

namespace quill {

// The contact with what it lacks from the card. Nothing the user sees is replaced, not even by a
// card of the same UID: the contact may have been edited since, and no card says so.
//
// - A field that has a text or a date keeps it. Empty ones are filled; the parts of a name, or of a
//   company and its department, only where none differs. An address fills the empty fields of the
//   one in its place when they have something in common and nothing differs.
// - Numbers and e-mail addresses that the contact has in no field take free ones, by the same rules
//   as in a new contact. Categories and children are joined.
// - The ink notes and the UID are taken when it has none.
// - What finds no place is carried beside the contact, unless an equal line is carried already
//   (JoinCarriedLines).
//
// Merging the same card again gives an equal contact.
ContactItem MergedContact(const ContactItem& stored, const Card& card);

}  // namespace quill
