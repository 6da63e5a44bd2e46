// Counts a collection and finds its items by position: over the list index where the restriction is
// ranges of keys, else over a list of all its Oids: from the index for a choice of several
// categories, by plain SQL for the rest.
//
// The count and a window of Oids of the collection asked for last are kept until the data change,
// so that a page read item by item costs one query.
#pragma once

#include <optional>
#include <vector>

#include "store/ContactCollection.h"
#include "store/ContactRecord.h"
#include "store/pim/Database.h"
#include "store/pim/KeyRanges.h"
#include "store/pim/ListIndex.h"

namespace quill {

class CollectionReader {
 public:
  explicit CollectionReader(Database& database) : m_database(database), m_index(database) {}

  // 0 when the store fails.
  int Count(const ContactCollection& collection);
  // Position from 1; 0 when there is no such item or the store fails.
  Oid OidAt(const ContactCollection& collection, int position);
  // In their order; those read until then when the store fails.
  std::vector<Oid> AllOids(const ContactCollection& collection);

 private:
  // A window of consecutive items, and where the items after it stand in the index.
  struct Window {
    int Start = 0;  // the position of the first Oid; 0 before anything was read
    std::vector<Oid> Oids = {};
    std::optional<EntryPlace> Last = {};
    std::size_t Range = 0;

    int End() const { return Start + static_cast<int>(Oids.size()); }
    bool Holds(int position) const { return position >= Start && position < End(); }
  };

  void TurnTo(const ContactCollection& collection);
  int CountRanges();
  void ReadWindow(int position);
  void ReadFrom(int position);
  void ReadOn();
  void Fill(EntrySlice slice);

  Database& m_database;
  ListIndex m_index;
  DataStamp m_stamp;
  ContactCollection m_collection;
  std::optional<KeyRanges> m_ranges;
  std::optional<int> m_count;
  Window m_window;
};

}  // namespace quill
