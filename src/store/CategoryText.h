// The text of the Categories property: names separated by commas, a blank after each comma when the
// store writes it. "No Categories" is never stored: a contact without any has an empty text.
#pragma once

#include <QString>
#include <QStringList>

namespace quill {

inline constexpr QStringView kNoCategories = u"No Categories";  // contacts without a category
inline constexpr QStringView kShowAllCategories = u"Show All";  // no category is chosen
inline constexpr QStringView kMoreCategories = u"More...";      // several are to be chosen
inline constexpr int kCategoryNameLimit = 128;  // UTF-16 units; what is longer, no menu holds

// The pieces between the commas, leading blanks skipped, trailing ones kept. Empty pieces name no
// category and are left out.
QStringList SplitCategories(QStringView categories);
QString JoinCategories(const QStringList& names);

// True when any name in chosen equals any name in categories exactly; kNoCategories equals none. An
// empty choice matches only an empty text.
bool CategoriesMatch(QStringView chosen, QStringView categories);

// The text of a contact whose category goes or gets another name. All else stays as it is; a
// contact that has the other name already keeps that and loses the old one.
QString RemoveFromCategories(QStringView categories, QStringView name);
QString RenameInCategories(QStringView categories, QStringView from, QStringView to);

// What a list of categories can hold of these: no empty name, none with a comma or a leading blank,
// none twice, and neither kNoCategories nor kShowAllCategories.
QStringList ValidCategories(const QStringList& names);
bool IsCategoryName(const QString& name);
// The same of a name that the user gives: it must also be one that the menu can offer.
bool IsNewCategoryName(const QString& name);

}  // namespace quill
