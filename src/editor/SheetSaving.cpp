#include "editor/SheetSaving.h"

#include "store/ContactStore.h"

namespace quill {

namespace {

Draft DraftOf(const SheetRecord& sheet, const Settings& settings) {
  return {.Number = sheet.Draft,
          .Oid = sheet.Oid,
          .FileAs = sheet.FileAs,
          .Record = RecordOf(sheet, settings.AreaCodePrefix),
          .Ink = g_contactInk.Bytes,
          .Opened = sheet.Opened,
          .OpenedInk = sheet.OpenedInk};
}

bool IsChanged(const SheetRecord& sheet, const Draft& now) {
  return now.Record != sheet.Opened || now.Ink != sheet.OpenedInk;
}

bool WriteNew(const Draft& draft) {
  g_contactInk.Bytes = draft.Ink;
  return WriteContact(0, draft.Record) != 0;
}

// What cannot be read must not be written over. Nobody else writes between the two.
bool WriteOver(const Draft& draft, const Settings& settings) {
  const auto unit = g_store.Provider ? g_store.Provider->Begin() : nullptr;
  ContactRecord stored;
  if (!unit || ReadContact(ContactSelector(draft.Oid), stored) == 0) return false;
  g_contactInk.Bytes = EnteredInkOver(draft, g_contactInk.Bytes);
  const SheetRecord now = SheetOf(draft.Oid, stored[ContactField::FileAs], stored);
  const ContactRecord record = EnteredOver(draft, RecordOf(now, settings.AreaCodePrefix));
  return WriteContact(draft.Oid, record) != 0 && unit->Commit();
}

bool Write(const Draft& draft, const Settings& settings) {
  return draft.Oid == 0 ? WriteNew(draft) : WriteOver(draft, settings);
}

// What a store in trouble does not find may be there.
bool IsDeleted(Oid oid) {
  if (oid == 0 || !g_store.Provider) return false;
  return !HasContact(oid) && g_store.Provider->LastError().isEmpty();
}

SheetOutcome Keep(const Draft& draft) {
  if (SaveDraft(draft) == 0) return SheetOutcome::NotKept;
  return IsDeleted(draft.Oid) ? SheetOutcome::KeptOfDeleted : SheetOutcome::KeptAsDraft;
}

SheetOutcome Forget(const Draft& draft, SheetOutcome outcome) {
  // One that stays is offered again, which does no harm.
  if (draft.Number != 0) DiscardDraft(draft.Number);
  return outcome;
}

}  // namespace

SheetOutcome SaveSheet(const SheetRecord& sheet, const Settings& settings) {
  const Draft draft = DraftOf(sheet, settings);
  g_contactInk = {};
  if (HasAnythingToSave(sheet) && Write(draft, settings))
    return Forget(draft, SheetOutcome::Written);
  if (!IsChanged(sheet, draft)) return Forget(draft, SheetOutcome::NothingToSave);
  const SheetOutcome outcome = Keep(draft);
  if (outcome == SheetOutcome::NotKept) g_contactInk.Bytes = draft.Ink;
  return outcome;
}

std::optional<Draft> EnteredSoFar(const SheetRecord& sheet, const Settings& settings) {
  const Draft draft = DraftOf(sheet, settings);
  return IsChanged(sheet, draft) ? std::optional(draft) : std::nullopt;
}

}  // namespace quill
