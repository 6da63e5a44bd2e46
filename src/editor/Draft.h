// Drafts of contacts: what was entered into a record sheet and could not be stored or was not worth
// storing, kept beside the store until the user takes it back or throws it away.
//
// They are in one recovery file. What in it cannot be understood is put aside, with a line in the
// log and none for the user; without recovery files there are no drafts.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "editor/SheetRecord.h"
#include "store/ContactRecord.h"

namespace quill {

struct Draft {
  int Number = 0;      // given when it is saved first; 0 before
  quill::Oid Oid = 0;  // 0: of a new contact
  QString FileAs = {};
  ContactRecord Record = {};  // as RecordOf makes it
  QByteArray Ink = {};
  ContactRecord Opened = {};  // the same before anything was entered
  QByteArray OpenedInk = {};

  bool operator==(const Draft&) const = default;
};

// Keeps it beside the others, or in place of the one of its number. Durable: it outlives a crash.
// Returns its number, 0 when it could not be kept.
int SaveDraft(const Draft& draft);

// The latest one that belongs to the contact. To 0, a new contact, those belong that were entered
// for a new one and those whose contact is no longer there: so every draft is offered somewhere.
std::optional<Draft> LoadDraft(Oid oid);

// The name that it is filed under or would be, else the first thing that was entered.
QString TitleOf(const Draft& draft);

// True when there is none of this number afterwards.
bool DiscardDraft(int number);

// What was entered, over what the contact and its ink are now: someone else may have changed them
// since the sheet was opened.
ContactRecord EnteredOver(const Draft& draft, const ContactRecord& now);
QByteArray EnteredInkOver(const Draft& draft, const QByteArray& now);

// The sheet that goes on with the draft, its ink in g_contactInk. Of a contact that was changed
// meanwhile only that is replaced which was entered then. When the contact is no longer there the
// sheet makes a new one, under the old FileAs. The draft stays until the sheet is saved.
SheetRecord SheetOfDraft(const Draft& draft, SheetState& state);

}  // namespace quill
