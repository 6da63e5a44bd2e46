// The contact list's process-wide state: what is shown, filtered how, and the page in view.
#pragma once

#include <QString>

#include <array>
#include <vector>

#include "store/ContactCollection.h"
#include "store/ContactRecord.h"

namespace quill {

enum class ViewMode { ByName = 0, ByCompany = 1, ByMemo = 2 };
enum class FilterKind { None = 0, Category = 1, Range = 2 };
enum class FilterSubKind { None = 0, IndexRange = 1, SearchText = 3 };

inline constexpr int kRowsWithIndex = 14;      // rows per page with the index strip
inline constexpr int kRowsWithoutIndex = 15;   // and without it
inline constexpr int kListRowTextLimit = 127;  // UTF-16 units of a page row's text

// Which picture stands at a row's right end; the kinds share pictures in pairs.
enum class RowIconKind {
  None = 0,
  Mobile = 1,
  Pager = 2,
  Business = 3,
  Business2 = 4,
  Home = 5,
  Home2 = 6,
  Email1 = 7,
  Email2 = 8,
  Email3 = 9,
  BusinessFax = 10,
  Address = 11,
};

// A row of the page buffer.
struct ListRow {
  QString Name;  // each at most kListRowTextLimit units
  QString Company;
  QString Text;  // the second column by name
  RowIconKind Icon = RowIconKind::None;
  quill::Oid Oid = 0;
  int Position = 0;  // on the page, 0-based

  bool operator==(const ListRow&) const = default;
};

struct ListState {
  ViewMode Mode = ViewMode::ByName;
  FilterKind Filter = FilterKind::None;
  FilterSubKind SubFilter = FilterSubKind::None;
  int IndexButton = 0;  // 1 to 5, 0 when none
  QString IndexLower;
  QString IndexUpper;
  QString CategoryName = QStringLiteral("Show All");
  int CategoryCount = 1;
  QString SearchText;

  ContactCollection Collection;  // as restricted
  QString Restriction;           // its text, empty when there is none
  int Total = 0;                 // its size
  int Top = 0;                   // 0-based position of the first row shown
  int RowsPerPage = kRowsWithIndex;
  int RowsShown = 0;
  QString SearchEntry;      // what stands in the search box, searched for or not
  bool RebuildDue = false;  // another program's change is not on the page yet
  std::array<ListRow, kRowsWithoutIndex> Rows;

  int CurrentRow = -1;            // on the page, 0-based; the row that keys act on
  std::vector<int> SelectedKeys;  // Oids, by memo positions in the memo list; in selection order
};
extern ListState g_list;

}  // namespace quill
