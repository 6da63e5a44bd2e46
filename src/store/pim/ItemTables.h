// The two tables that each kind of item has: the items with their Oids, and the journal of the
// deleted ones.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace quill {

// The tables `item` and `item`_journal, the index of the column Uid, and the trigger by which no
// deletion goes round the journal. Names and declarations are of the same columns, in one order.
QByteArray ItemTables(const QByteArray& item, const QByteArrayList& names,
                      const QByteArrayList& declarations);
// The trigger alone: a column that a later version adds to both tables needs it anew.
QByteArray JournalTrigger(const QByteArray& item, const QByteArrayList& names);

}  // namespace quill
