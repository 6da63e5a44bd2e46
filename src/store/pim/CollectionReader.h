// Counts a collection and finds its items by position, by plain SQL over the restriction.
//
// The count and a window of Oids of the collection asked for last are kept until the data change,
// so that a page read item by item costs one query.
#pragma once

#include <optional>
#include <vector>

#include "store/ContactCollection.h"
#include "store/ContactRecord.h"
#include "store/pim/Database.h"

namespace quill {

class CollectionReader {
 public:
  explicit CollectionReader(Database& database) : m_database(database) {}

  // 0 when the store fails.
  int Count(const ContactCollection& collection);
  // Position from 1; 0 when there is no such item or the store fails.
  Oid OidAt(const ContactCollection& collection, int position);

 private:
  void TurnTo(const ContactCollection& collection);
  void ReadCount();
  void ReadWindow(int position);

  Database& m_database;
  DataStamp m_stamp;
  ContactCollection m_collection;
  std::optional<int> m_count;
  int m_windowStart = 0;  // the position of the window's first Oid
  std::vector<Oid> m_window;
};

}  // namespace quill
