// The counted list index: how many entries a range of keys has, and which stand at a place in it,
// without reading those before.
//
//   entry (key, oid)       every contact and appointment under its keys (EntryKeys.h)
//   bucket (key, oid, n)   so many entries stand from (key, oid) up to the next bucket; the first
//                          bucket begins before every entry
//
// Triggers keep both, so every statement that changes a contact changes them too, and a program
// that lacks the functions of SqlFunctions.h cannot write at all. Counting sums the buckets of the
// range and looks into the two at its ends; finding a place walks the buckets. A bucket has fewer
// than 1,024 entries.
#pragma once

#include <QByteArray>

#include <optional>
#include <tuple>
#include <vector>

#include "store/ContactRecord.h"
#include "store/pim/KeyRanges.h"

namespace quill {

class Database;

struct EntryPlace {
  QByteArray Key;
  Oid Id = 0;  // 0: before every entry of this key

  bool operator<(const EntryPlace& other) const {
    return std::tie(Key, Id) < std::tie(other.Key, other.Id);
  }
};

struct EntrySlice {
  std::vector<Oid> Oids;
  std::optional<EntryPlace> Last;  // where to go on; nothing when the range ended before the limit
};

class ListIndex {
 public:
  explicit ListIndex(Database& database) : m_database(database) {}

  // When the store fails, a count is 0 and a slice is empty.
  int Count(const KeyRange& range);
  // The Oids of at most so many entries of the range from an offset (0-based) on.
  EntrySlice Slice(const KeyRange& range, int offset, int limit);
  // The same from after a place in the range on.
  EntrySlice SliceAfter(const EntryPlace& place, const KeyRange& range, int limit);
  // Every Oid in any of these, once, in the order that their keys have after the prefixes. Takes
  // time in proportion to their number.
  std::vector<Oid> Union(const std::vector<CategoryRanges>& several);

 private:
  EntryPlace BucketBefore(const QByteArray& key);
  int EntriesOfBuckets(const EntryPlace& from, const EntryPlace& to);
  int Entries(const EntryPlace& from, const QByteArray& to);
  EntryPlace WalkBuckets(EntryPlace from, int& offset);

  Database& m_database;
};

// The index of a store that is empty and lacks it; the tables it indexes are there.
QByteArray ListIndexTables();
// Makes the index anew from what it indexes, whatever there was of it; for a transaction of the
// caller. Returns 0 or the failure.
int RebuildListIndex(Database& database);

}  // namespace quill
