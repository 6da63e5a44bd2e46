#include "list/PendingRequest.h"

#include <QLoggingCategory>

#include <utility>

#include "platform/TextFitting.h"
#include "store/ContactStore.h"
#include "store/Restriction.h"

namespace quill {

PendingRequest g_pendingRequest;

namespace {

Q_LOGGING_CATEGORY(logRequests, "quill.list")

// There is one place, and whoever asked before has been told that it will be done.
void Replace(PendingRequest& request, PendingRequest next) {
  if (request.Kind != PendingKind::None)
    qCWarning(logRequests) << "a request that waits gives way to a later one";
  next.NobodyFound = request.NobodyFound;
  request = std::move(next);
}

Oid FindByName(const QString& fileAs) {
  const ContactCollection named = RestrictContacts(
      AllContacts(), QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(fileAs));
  ContactRecord record;
  return ReadListRow({named, 1}, record);
}

}  // namespace

RequestAnswer TakeRequest(PendingRequest& request, int kind, const QString& text) {
  const auto asked = static_cast<PendingKind>(kind);
  switch (asked) {
    case PendingKind::New:
      Replace(request, {.Kind = asked, .Text = CutText(text, kRequestTextLimit)});
      return RequestAnswer::Kept;
    case PendingKind::Show:
    case PendingKind::ShowAgain:
      break;
    default:
      return RequestAnswer::Ignored;
  }
  const Oid contact = FindByName(text);
  request.NobodyFound = request.NobodyFound || contact == 0;
  if (contact == 0) return RequestAnswer::NotFound;
  Replace(request, {.Kind = asked, .Contact = contact});
  return RequestAnswer::Kept;
}

void TakeMemo(PendingRequest& request, const QString& path) {
  if (request.Kind != PendingKind::Memos) Replace(request, {.Kind = PendingKind::Memos});
  request.Memos.append(path);
}

void DropIfGone(PendingRequest& request) {
  const bool shows = request.Kind == PendingKind::Show || request.Kind == PendingKind::ShowAgain;
  if (shows && !HasContact(request.Contact)) request = {.NobodyFound = true};
}

}  // namespace quill
