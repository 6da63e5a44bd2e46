#include "editor/Draft.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "editor/DraftJson.h"
#include "platform/RecoveryFiles.h"
#include "platform/Services.h"
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

bool IsThere(Oid oid) {
  ContactRecord record;
  return oid != 0 && ReadListRow(ContactSelector(oid), record) != 0;
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

std::optional<Draft> LoadDraft() {
  RecoveryFiles* const files = g_services.Recovery;
  if (!files) return std::nullopt;
  const std::vector<Draft> drafts = ReadDrafts(*files);
  return drafts.empty() ? std::nullopt : std::optional(drafts.back());
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

SheetRecord SheetOfDraft(const Draft& draft, SheetState& state) {
  SheetRecord sheet = SheetOf(IsThere(draft.Oid) ? draft.Oid : 0, draft.FileAs, draft.Record);
  sheet.Draft = draft.Number;
  SumUpParts(sheet, RowSet::Basic);
  state.PhoneFlags = PhoneFlagsOf(draft.Record);
  g_contactInk.Bytes = draft.Ink;
  return sheet;
}

}  // namespace quill
