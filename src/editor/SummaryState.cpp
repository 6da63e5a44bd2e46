#include "editor/SummaryState.h"

#include "editor/SummaryLayout.h"
#include "store/ContactStore.h"

namespace quill {

SummaryState g_card;

SummaryState LoadCard(Oid oid, int anchorY, int listTop) {
  ContactRecord record;
  if (oid == 0 || ReadListRow(ContactSelector(oid), record) == 0) return {};
  SummaryState card{.Contact = oid, .Lines = SummaryLines(record)};
  card.LineCount = CardLineCount(card.Lines);
  card.Place = PlaceCard(card.LineCount, anchorY, listTop);
  return card;
}

}  // namespace quill
