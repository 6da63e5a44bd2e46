// Contacts handed to other devices and taken from them by the device's infrared folder. Told is
// only that a contact could not be handed to the folder; by memo nothing happens.
#pragma once

#include "list/ListState.h"

namespace quill {

// Whether there is a contact to hand over.
bool CanBeam(const ListState& list);
// Sends the selected contacts, in the order of their selection and at once. A sending is made with
// none of them, too, but not when the folder cannot be opened.
void BeamSelectedContacts(const ListState& list);

// What comes is told by a notice of the store.
void ReceiveContacts(const ListState& list);

}  // namespace quill
