// What a row of the page buffer shows of a contact.
#pragma once

#include "list/ListState.h"

namespace quill {

// The second column and the icon tell the first way to reach the contact, in this order: mobile,
// business, home, pager, second business, second home, the three e-mail addresses, business fax.
// Without any of them the text is empty and the icon says whether there is an address.
ListRow MakeListRow(Oid oid, const ContactRecord& record, int position);

// The text's beginning of at most kListRowTextLimit units; one less where a surrogate pair would be
// cut in two.
QString CutListRowText(const QString& text);

}  // namespace quill
