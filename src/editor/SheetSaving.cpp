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

bool Write(const Draft& draft) {
  g_contactInk.Bytes = draft.Ink;
  return WriteContact(draft.Oid, draft.Record) != 0;
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
  return SaveDraft(draft) != 0 ? SheetOutcome::KeptAsDraft : SheetOutcome::Lost;
}

std::optional<Draft> EnteredSoFar(const SheetRecord& sheet, const Settings& settings) {
  const Draft draft = DraftOf(sheet, settings);
  return IsChanged(sheet, draft) ? std::optional(draft) : std::nullopt;
}

}  // namespace quill
