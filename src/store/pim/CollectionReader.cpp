#include "store/pim/CollectionReader.h"

#include <utility>

#include "store/pim/PlainOids.h"

namespace quill {

namespace {

constexpr int kWindowSize = 64;

bool SameItems(const ContactCollection& a, const ContactCollection& b) {
  if (a.Order != b.Order) return false;
  if (a.Restriction == b.Restriction) return true;
  return a.Restriction && b.Restriction && *a.Restriction == *b.Restriction;
}

}  // namespace

int CollectionReader::Count(const ContactCollection& collection) {
  TurnTo(collection);
  if (!m_count) m_count = CountRanges();
  return *m_count;
}

Oid CollectionReader::OidAt(const ContactCollection& collection, int position) {
  if (position < 1) return 0;
  TurnTo(collection);
  if (m_ranges && !m_window.Holds(position)) ReadWindow(position);
  if (!m_window.Holds(position)) return 0;
  return m_window.Oids[static_cast<std::size_t>(position - m_window.Start)];
}

std::vector<Oid> CollectionReader::AllOids(const ContactCollection& collection) {
  std::vector<Oid> oids;
  while (const Oid oid = OidAt(collection, static_cast<int>(oids.size()) + 1)) oids.push_back(oid);
  return oids;
}

void CollectionReader::TurnTo(const ContactCollection& collection) {
  const DataStamp stamp = m_database.Stamp();
  if (stamp == m_stamp && SameItems(collection, m_collection)) return;
  m_stamp = stamp;
  m_collection = collection;
  m_ranges = ContactRanges(collection);
  m_count.reset();
  m_window = {};
  if (m_ranges) return;
  const auto several = SeveralCategoryRanges(collection);
  m_window = {.Start = 1,
              .Oids = several ? m_index.Union(*several) : PlainContactOids(m_database, collection)};
  m_count = static_cast<int>(m_window.Oids.size());
}

int CollectionReader::CountRanges() {
  // The page that is read next mostly begins at the first item; a short collection is in it whole.
  if (m_window.Start == 0) ReadWindow(1);
  if (m_window.Start == 1 && m_window.Oids.size() < kWindowSize) return m_window.End() - 1;
  int count = 0;
  for (const KeyRange& range : *m_ranges) count += m_index.Count(range);
  return count;
}

void CollectionReader::ReadWindow(int position) {
  if (m_window.Start != 0 && position == m_window.End()) {
    ReadOn();
  } else {
    ReadFrom(position);
  }
}

void CollectionReader::ReadFrom(int position) {
  int offset = position - 1;
  std::size_t range = 0;
  // The last range needs no count: nothing follows it.
  for (; range + 1 < m_ranges->size(); ++range) {
    const int entries = m_index.Count((*m_ranges)[range]);
    if (offset < entries) break;
    offset -= entries;
  }
  m_window = {.Start = position, .Range = range};
  if (range < m_ranges->size()) Fill(m_index.Slice((*m_ranges)[range], offset, kWindowSize));
}

void CollectionReader::ReadOn() {
  const auto last = std::exchange(m_window.Last, std::nullopt);
  m_window.Start = m_window.End();
  m_window.Oids.clear();
  if (last) Fill(m_index.SliceAfter(*last, (*m_ranges)[m_window.Range], kWindowSize));
}

// With this slice of the window's range, and with the ranges after it as long as there is room.
void CollectionReader::Fill(EntrySlice slice) {
  m_window.Oids = std::move(slice.Oids);
  m_window.Last = std::move(slice.Last);
  while (!m_window.Last && m_window.Range + 1 < m_ranges->size()) {
    const int room = kWindowSize - static_cast<int>(m_window.Oids.size());
    slice = m_index.Slice((*m_ranges)[++m_window.Range], 0, room);
    m_window.Oids.insert(m_window.Oids.end(), slice.Oids.begin(), slice.Oids.end());
    m_window.Last = std::move(slice.Last);
  }
}

}  // namespace quill
