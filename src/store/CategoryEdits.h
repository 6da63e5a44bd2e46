// What the user does to the categories: the list that the library keeps and the contacts that have
// them. Each is one transaction: all of it is written or nothing, and a failure is on the log.
#pragma once

#include <QString>

namespace quill {

enum class CategoryEdit {
  Done,
  NotAName,       // IsNewCategoryName says no
  ExistsAlready,  // in the library
  NotWritten,     // the store failed or no session is open
};

// Puts it behind the others.
CategoryEdit AddCategory(const QString& name);
// Keeps its place in the library; contacts that have it follow. A name that only contacts have can
// be renamed, too.
CategoryEdit RenameCategory(const QString& from, const QString& to);
// Takes it out of the library and off the contacts.
CategoryEdit RemoveCategory(const QString& name);

// 0 when the store fails.
int CountContactsOf(const QString& category);

}  // namespace quill
