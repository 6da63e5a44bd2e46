// The category library of the open session: the names the user keeps, and those to choose from.
#pragma once

#include <QString>
#include <QStringList>

namespace quill {

// Once at the start. False when the session has no library: then there are no categories (the
// reason goes to the log).
bool Cate_OpenCreate_DB();

QStringList UserCategories();
// The user's, then "No Categories".
QStringList OfferedCategories();
// The same as one text, with commas and no blanks between. The kind is always 1; there is no other.
QString Cate_GetCategoryList(int kind);
// False when no session is open or the store fails (the reason goes to the log).
bool SetUserCategories(const QStringList& names);

}  // namespace quill
