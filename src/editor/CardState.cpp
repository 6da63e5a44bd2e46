#include "editor/CardState.h"

#include "editor/CardLayout.h"
#include "store/ContactStore.h"

namespace quill {

CardState g_card;

CardState LoadCard(Oid oid, int anchorY, int listTop) {
  ContactRecord record;
  if (oid == 0 || ReadListRow(ContactSelector(oid), record) == 0) return {};
  CardState card{.Contact = oid, .Lines = CardLines(record)};
  card.LineCount = CardLineCount(card.Lines);
  card.Place = PlaceCard(card.LineCount, anchorY, listTop);
  return card;
}

}  // namespace quill
