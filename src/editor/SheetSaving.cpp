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

// The contact as it is to be, its ink in g_contactInk; nothing when it cannot be read. Another
// program may have changed it since the sheet was opened.
std::optional<ContactRecord> Changed(const Draft& draft) {
  ContactRecord now;
  if (ReadContact(ContactSelector(draft.Oid), now) == 0) return std::nullopt;
  if (draft.Ink != draft.OpenedInk) g_contactInk.Bytes = draft.Ink;
  return EnteredOver(draft, now);
}

std::optional<ContactRecord> New(const Draft& draft) {
  g_contactInk.Bytes = draft.Ink;
  return draft.Record;
}

bool Write(const Draft& draft) {
  const auto transaction = g_store.Provider ? g_store.Provider->Begin() : nullptr;
  if (!transaction) return false;
  const auto record = draft.Oid == 0 ? New(draft) : Changed(draft);
  return record && WriteContact(draft.Oid, *record) != 0 && transaction->Commit();
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
  const bool isWorthSaving = HasAnythingToSave(sheet);
  if (isWorthSaving && Write(draft)) return Forget(draft, SheetOutcome::Written);
  if (!isWorthSaving && !IsChanged(sheet, draft)) return Forget(draft, SheetOutcome::NothingToSave);
  if (SaveDraft(draft) != 0) return SheetOutcome::KeptAsDraft;
  g_contactInk.Bytes = draft.Ink;
  return SheetOutcome::NotKept;
}

std::optional<Draft> EnteredSoFar(const SheetRecord& sheet, const Settings& settings) {
  const Draft draft = DraftOf(sheet, settings);
  return IsChanged(sheet, draft) ? std::optional(draft) : std::nullopt;
}

}  // namespace quill
