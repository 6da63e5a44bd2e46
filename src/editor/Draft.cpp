#include "editor/Draft.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "editor/DraftJson.h"
#include "platform/RecoveryFiles.h"
#include "platform/Services.h"
#include "store/ContactFields.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr QStringView kFile = u"drafts.json";

// What cannot be read or understood is out of the way afterwards.
std::vector<Draft> ReadDrafts(RecoveryFiles& files) {
  if (const auto content = files.Read(kFile.toString()))
    if (auto drafts = DraftsFromJson(*content)) return std::move(*drafts);
  files.SetAside(kFile.toString());  // where that fails writing fails as well
  return {};
}

bool WriteDrafts(RecoveryFiles& files, const std::vector<Draft>& drafts) {
  return drafts.empty() ? files.Remove(kFile.toString())
                        : files.Write(kFile.toString(), JsonFromDrafts(drafts));
}

int NextNumber(const std::vector<Draft>& drafts) {
  return drafts.empty() ? 1 : drafts.back().Number + 1;
}

auto FindDraft(std::vector<Draft>& drafts, int number) {
  return std::ranges::find(drafts, number, &Draft::Number);
}

bool BelongsTo(Oid oid, const Draft& draft) {
  return draft.Oid == oid || (oid == 0 && !HasContact(draft.Oid));
}

bool HasEnteredName(const Draft& draft) {
  return std::ranges::any_of(RulesOf(RowSet::NameParts), [&](const RowRule& rule) {
    return draft.Record[*rule.Field] != draft.Opened[*rule.Field];
  });
}

SheetRecord NewSheetOf(const Draft& draft) {
  g_contactInk.Bytes = draft.Ink;
  return SheetOf(0, draft.FileAs, draft.Record);
}

// LoadSheet has read the contact, its ink included.
SheetRecord SheetOver(const Draft& draft, const SheetRecord& now) {
  g_contactInk.Bytes = EnteredInkOver(draft, now.OpenedInk);
  SheetRecord sheet = SheetOf(now.Oid, now.FileAs, EnteredOver(draft, now.Opened));
  sheet.Opened = now.Opened;
  sheet.OpenedInk = now.OpenedInk;
  return sheet;
}

}  // namespace

int SaveDraft(const Draft& draft) {
  RecoveryFiles* const files = g_services.Recovery;
  if (!files) return 0;
  std::vector<Draft> drafts = ReadDrafts(*files);
  auto place = FindDraft(drafts, draft.Number);
  if (place == drafts.end()) {
    const int number = NextNumber(drafts);
    place = drafts.insert(drafts.end(), draft);
    place->Number = number;
  } else {
    *place = draft;
  }
  const int number = place->Number;
  return WriteDrafts(*files, drafts) ? number : 0;
}

std::optional<Draft> LoadDraft(Oid oid) {
  RecoveryFiles* const files = g_services.Recovery;
  if (!files) return std::nullopt;
  std::vector<Draft> drafts = ReadDrafts(*files);
  std::ranges::reverse(drafts);
  const auto found =
      std::ranges::find_if(drafts, [oid](const Draft& draft) { return BelongsTo(oid, draft); });
  return found == drafts.end() ? std::nullopt : std::optional(*found);
}

QString TitleOf(const Draft& draft) {
  if (!draft.FileAs.isEmpty()) return draft.FileAs;
  const auto first = std::ranges::find_if_not(draft.Record.Texts, &QString::isEmpty);
  return first == draft.Record.Texts.end() ? QStringLiteral("a contact") : *first;
}

bool DiscardDraft(int number) {
  RecoveryFiles* const files = g_services.Recovery;
  if (!files) return true;
  std::vector<Draft> drafts = ReadDrafts(*files);
  const auto found = FindDraft(drafts, number);
  if (found == drafts.end()) return true;
  drafts.erase(found);
  return WriteDrafts(*files, drafts);
}

ContactRecord EnteredOver(const Draft& draft, const ContactRecord& now) {
  ContactRecord merged = now;
  for (const ContactFieldRow& row : kContactFields)
    if (draft.Record[row.Field] != draft.Opened[row.Field])
      merged[row.Field] = draft.Record[row.Field];
  for (const ContactDateRow& row : kContactDates)
    if (draft.Record.*row.Date != draft.Opened.*row.Date) merged.*row.Date = draft.Record.*row.Date;
  return merged;
}

QByteArray EnteredInkOver(const Draft& draft, const QByteArray& now) {
  return draft.Ink == draft.OpenedInk ? now : draft.Ink;
}

SheetRecord SheetOfDraft(const Draft& draft, SheetState& state) {
  const SheetRecord now = LoadSheet(draft.Oid, state);
  SheetRecord sheet = now.Oid == 0 ? NewSheetOf(draft) : SheetOver(draft, now);
  sheet.Draft = draft.Number;
  // Else the name row shows the FileAs, as when the contact is opened.
  if (HasEnteredName(draft)) SumUpParts(sheet, RowSet::Basic);
  state.PhoneFlags = PhoneFlagsOf(RecordOf(sheet, {}));
  return sheet;
}

}  // namespace quill
