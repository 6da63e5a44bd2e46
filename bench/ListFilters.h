// What a list asks of the store when it is built, for every kind of filter there is.
#pragma once

#include <QString>

#include <vector>

#include "store/StoreProvider.h"

namespace quill::bench {

inline constexpr int kPageRows = 14;

struct ListFilter {
  QString Name = {};
  QString Restriction = {};  // empty: every contact
  ContactOrder Order = ContactOrder::ByFileAs;
};

// One of each kind, but for those below.
std::vector<ListFilter> ListFilters();
// A choice of two categories, in two ways.
std::vector<ListFilter> TwoCategoryFilters();
ListFilter IndexButtonFilter(int button);

// Asks for the contacts that the filter lets through; nothing when the store fails.
std::optional<ContactCollection> Ask(ContactsFolder& folder, const ListFilter& filter);

// Reads a page's list rows from a position (1-based) on. False when a row cannot be read that the
// total says is there.
bool ReadPage(ContactsFolder& folder, const ContactCollection& collection, int total, int from);

// What building a list costs the store: ask, count, read the first page.
bool BuildList(ContactsFolder& folder, const ListFilter& filter);

}  // namespace quill::bench
