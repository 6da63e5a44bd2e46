// The summary card that is shown over the list: whose it is, what it says and where it stands.
#pragma once

#include <QRect>

#include <vector>

#include "editor/SummaryText.h"
#include "store/ContactRecord.h"

namespace quill {

struct SummaryState {
  Oid Contact = 0;  // 0: no card is shown
  std::vector<SummaryLine> Lines = {};
  int LineCount = 0;  // how many lines high they are
  QRect Place = {};   // on the screen, in logical pixels
};
extern SummaryState g_card;

// The card of a contact at an anchor in the list; listTop: the list's top on the screen. The
// contact's ink notes are not touched. Nothing (Contact 0) when it can no longer be read.
SummaryState LoadCard(Oid oid, int anchorY, int listTop);

}  // namespace quill
