#include "store/pim/ListIndex.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "store/pim/Database.h"

namespace quill {

namespace {

// So near to the range's beginning, reading over the entries before is faster than asking the
// buckets.
constexpr int kNearOffset = 256;

void BindPlace(Query& query, int parameter, const EntryPlace& place) {
  query.BindBlob(parameter, place.Key);
  query.BindNumber(parameter + 1, place.Id);
}

int CountOf(Query& query) { return query.Next() ? static_cast<int>(query.Number(0)) : 0; }

EntrySlice ReadSlice(Query& query, int limit) {
  EntrySlice slice;
  while (query.Next()) {
    slice.Oids.push_back(static_cast<Oid>(query.Number(1)));
    if (static_cast<int>(slice.Oids.size()) < limit) continue;
    slice.Last = EntryPlace{.Key = query.Blob(0), .Id = slice.Oids.back()};
    break;
  }
  return slice;
}

// The entries of a range one by one; their keys without a prefix.
class EntryStream {
 public:
  // Streams that are read at once need numbers of their own: each has its own statement.
  EntryStream(Database& database, const KeyRange& range, qsizetype prefixSize, int number)
      : m_query(database.Prepare("SELECT key, oid FROM entry WHERE key >= ?1 AND key < ?2 "
                                 "ORDER BY key, oid -- " +
                                 QByteArray::number(number))),
        m_prefixSize(prefixSize) {
    m_query.BindBlob(1, range.From);
    m_query.BindBlob(2, range.To);
  }

  // False at the end.
  bool Next() {
    if (!m_query.Next()) return false;
    m_place = {.Key = m_query.Blob(0).mid(m_prefixSize), .Id = static_cast<Oid>(m_query.Number(1))};
    return true;
  }
  const EntryPlace& Place() const { return m_place; }

 private:
  Query m_query;
  qsizetype m_prefixSize;
  EntryPlace m_place;
};

using EntryStreams = std::vector<std::unique_ptr<EntryStream>>;

// In the order of the places, each once; every stream stands at its first entry.
std::vector<Oid> Merged(EntryStreams streams) {
  std::vector<Oid> oids;
  EntryPlace last;
  while (!streams.empty()) {
    const auto least =
        std::min_element(streams.begin(), streams.end(),
                         [](const auto& a, const auto& b) { return a->Place() < b->Place(); });
    if (const EntryPlace& place = (*least)->Place(); last < place) {
      oids.push_back(place.Id);
      last = place;
    }
    if (!(*least)->Next()) streams.erase(least);
  }
  return oids;
}

}  // namespace

int ListIndex::Count(const KeyRange& range) {
  const EntryPlace first = BucketBefore(range.From);
  const EntryPlace last = BucketBefore(range.To);
  return EntriesOfBuckets(first, last) + Entries(last, range.To) - Entries(first, range.From);
}

EntrySlice ListIndex::Slice(const KeyRange& range, int offset, int limit) {
  EntryPlace from{.Key = range.From, .Id = 0};
  if (offset > kNearOffset) {
    const EntryPlace first = BucketBefore(range.From);
    offset += Entries(first, range.From);
    from = WalkBuckets(first, offset);
  }
  Query query = m_database.Prepare(
      "SELECT key, oid FROM entry WHERE (key, oid) >= (?1, ?2) AND key < ?3 "
      "ORDER BY key, oid LIMIT ?4 OFFSET ?5");
  BindPlace(query, 1, from);
  query.BindBlob(3, range.To);
  query.BindNumber(4, limit);
  query.BindNumber(5, offset);
  return ReadSlice(query, limit);
}

EntrySlice ListIndex::SliceAfter(const EntryPlace& place, const KeyRange& range, int limit) {
  Query query = m_database.Prepare(
      "SELECT key, oid FROM entry WHERE (key, oid) > (?1, ?2) AND key < ?3 "
      "ORDER BY key, oid LIMIT ?4");
  BindPlace(query, 1, place);
  query.BindBlob(3, range.To);
  query.BindNumber(4, limit);
  return ReadSlice(query, limit);
}

std::vector<Oid> ListIndex::Union(const std::vector<CategoryRanges>& several) {
  EntryStreams streams;
  for (const CategoryRanges& category : several) {
    for (const KeyRange& range : category.Ranges) {
      auto stream = std::make_unique<EntryStream>(m_database, range, category.PrefixSize,
                                                  static_cast<int>(streams.size()));
      if (stream->Next()) streams.push_back(std::move(stream));
    }
  }
  return Merged(std::move(streams));
}

// The bucket in which the entries below this key end. Oids begin at 1, so a bucket at this very key
// may begin after some of its entries, never before all.
EntryPlace ListIndex::BucketBefore(const QByteArray& key) {
  Query query = m_database.Prepare(
      "SELECT key, oid FROM bucket WHERE key < ?1 ORDER BY key DESC, oid DESC LIMIT 1");
  query.BindBlob(1, key);
  if (!query.Next()) return {};
  return {.Key = query.Blob(0), .Id = static_cast<Oid>(query.Number(1))};
}

int ListIndex::EntriesOfBuckets(const EntryPlace& from, const EntryPlace& to) {
  Query query = m_database.Prepare(
      "SELECT coalesce(sum(n), 0) FROM bucket WHERE (key, oid) >= (?1, ?2) AND "
      "(key, oid) < (?3, ?4)");
  BindPlace(query, 1, from);
  BindPlace(query, 3, to);
  return CountOf(query);
}

int ListIndex::Entries(const EntryPlace& from, const QByteArray& to) {
  Query query =
      m_database.Prepare("SELECT count(*) FROM entry WHERE (key, oid) >= (?1, ?2) AND key < ?3");
  BindPlace(query, 1, from);
  query.BindBlob(3, to);
  return CountOf(query);
}

// The bucket that holds the entry so far behind the beginning of the first one; the offset becomes
// that within the bucket found.
EntryPlace ListIndex::WalkBuckets(EntryPlace from, int& offset) {
  Query query = m_database.Prepare(
      "SELECT key, oid, n FROM bucket WHERE (key, oid) >= (?1, ?2) ORDER BY key, oid");
  BindPlace(query, 1, from);
  int before = 0;
  while (query.Next()) {
    const auto entries = static_cast<int>(query.Number(2));
    if (offset < before + entries) {
      offset -= before;
      return {.Key = query.Blob(0), .Id = static_cast<Oid>(query.Number(1))};
    }
    before += entries;
  }
  return from;
}

}  // namespace quill
