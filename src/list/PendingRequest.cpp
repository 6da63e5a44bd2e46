#include "list/PendingRequest.h"

#include "platform/TextFitting.h"
#include "store/ContactStore.h"
#include "store/Restriction.h"

namespace quill {

PendingRequest g_pendingRequest;

namespace {

Oid FindByName(const QString& fileAs) {
  const ContactCollection named = RestrictContacts(
      AllContacts(), QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(fileAs));
  ContactRecord record;
  return ReadListRow({named, 1}, record);
}

bool IsThere(Oid contact) {
  ContactRecord record;
  return contact != 0 && ReadListRow(ContactSelector(contact), record) != 0;
}

}  // namespace

RequestAnswer TakeRequest(PendingRequest& request, int kind, const QString& text) {
  const auto asked = static_cast<PendingKind>(kind);
  switch (asked) {
    case PendingKind::New:
      request = {.Kind = asked, .Text = CutText(text, kRequestTextLimit)};
      return RequestAnswer::Kept;
    case PendingKind::Show:
    case PendingKind::ShowAgain:
      break;
    default:
      return RequestAnswer::Ignored;
  }
  request = {.Kind = asked, .Contact = FindByName(text)};
  return NamesNobody(request) ? RequestAnswer::NotFound : RequestAnswer::Kept;
}

void TakeMemo(PendingRequest& request, const QString& path) {
  if (request.Kind != PendingKind::Memos) request = {.Kind = PendingKind::Memos};
  request.Memos.append(path);
}

bool NamesNobody(const PendingRequest& request) {
  const bool shows = request.Kind == PendingKind::Show || request.Kind == PendingKind::ShowAgain;
  return shows && !IsThere(request.Contact);
}

}  // namespace quill
