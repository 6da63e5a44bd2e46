// A draft that holds something in every place.
#pragma once

#include "editor/Draft.h"
#include "store/ContactFields.h"

namespace quill::test {

inline Draft FullDraft(int number) {
  Draft draft{.Number = number, .Oid = -7, .FileAs = QStringLiteral("Kim, \"M\"")};
  for (const ContactFieldRow& row : kContactFields)
    draft.Record[row.Field] = row.Property.toString() + QStringLiteral("\n\uAE40\U0001F600");
  draft.Record.Birthday = {1987, 3, 4, 5, 6, 7, 8, 9};
  draft.Record.Anniversary = {2999, 12, 1, 31, 23, 59, 58, 999};
  draft.Ink = QByteArray("\0ink\xFF", 5);
  draft.Opened[ContactField::JobTitle] = QStringLiteral("before");
  draft.OpenedInk = "old ink";
  return draft;
}

}  // namespace quill::test
