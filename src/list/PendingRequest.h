// What another program asks of the list: kept until the list can show it.
#pragma once

#include <QString>
#include <QStringList>

#include "list/ListState.h"

namespace quill {

inline constexpr int kRequestTimer = 5;
inline constexpr int kRequestMilliseconds = 100;

// The kinds as they come with the message.
enum class PendingKind {
  None = 0,
  Show = 1,       // the contact that the text names
  New = 2,        // a new contact that holds the text
  ShowAgain = 4,  // the same by another entry
  Memos = -1,     // memo files; comes by no message
};

inline constexpr qsizetype kRequestTextLimit = 128;  // UTF-16 units; what is longer is cut

// The latest request takes the place of an earlier one. That one gave way is said on the log.
struct PendingRequest {
  PendingKind Kind = PendingKind::None;
  bool NobodyFound = false;  // a text named nobody, and that is still to be said
  Oid Contact = 0;           // to be shown
  QString Text = {};         // of the new contact
  QStringList Memos = {};    // device paths, to be opened one after the other
};
extern PendingRequest g_pendingRequest;

enum class RequestAnswer {
  Ignored,   // an unknown kind
  NotFound,  // no contact is filed under exactly this text: what waits goes on waiting
  Kept,      // in request now
};
// Of several contacts of one name the first in the store's order is meant.
RequestAnswer TakeRequest(PendingRequest& request, int kind, const QString& text);

// Memos that wait already stay before it.
void TakeMemo(PendingRequest& request, const QString& path);

// Notes that nobody was found when the contact that waits to be shown has gone meanwhile.
void DropIfGone(PendingRequest& request);

}  // namespace quill
