#include "ReadMeasures.h"

#include <algorithm>
#include <memory>
#include <random>

#include "ListFilters.h"
#include "store/Restriction.h"

namespace quill::bench {

namespace {

constexpr int kPagesInARow = 4;
constexpr int kLinesInARow = 40;
constexpr int kRowsOfAStep = kPageRows - 1;  // a page keeps one row of the page before
// A place to begin at has this many contacts behind it.
constexpr int kRoomBehind = kPagesInARow * kRowsOfAStep + kPageRows;

constexpr QStringView kBuildAim = u"6 P; at 1M 12 P and 1 ms";
constexpr QStringView kScrollAim = u"4 R; at 1M 6 R";

// A number from 1 to the limit.
int Any(std::mt19937& random, int limit) {
  return 1 + static_cast<int>(random() % static_cast<unsigned>(std::max(limit, 1)));
}

std::vector<Oid> FirstOids(ContactsFolder& folder) {
  std::vector<Oid> oids;
  for (int position = 1; position <= kPageRows; ++position)
    oids.push_back(folder.OidAt(folder.Items(), position));
  return oids;
}

bool ReadRows(ContactsFolder& folder, const std::vector<Oid>& oids) {
  ContactRecord record;
  for (const Oid oid : oids) {
    if (!folder.ReadListRow(oid, record)) return false;
  }
  return true;
}

void SetUnits(ContactsFolder& folder, Ruler& ruler) {
  const auto readFirst = [&folder, oids = FirstOids(folder)] { return ReadRows(folder, oids); };
  ruler.SetUnit(Unit::Page, QStringLiteral("P: 14 rows by Oid"), readFirst, readFirst);
  const auto oids = std::make_shared<std::vector<Oid>>(kPageRows);
  const auto choose = [oids, count = folder.Count(folder.Items()),
                       random = std::mt19937(1)]() mutable {
    for (Oid& oid : *oids) oid = Any(random, count);
    return true;
  };
  ruler.SetUnit(Unit::Rows, QStringLiteral("R: 14 rows of contacts anywhere"), choose,
                [&folder, oids] { return ReadRows(folder, *oids); });
}

// Every list is built after the others, so that none is still at hand from its last time.
void MeasureBuilding(ContactsFolder& folder, Ruler& ruler) {
  const std::vector<ListFilter> filters = ListFilters();
  std::vector<int> rows;
  rows.reserve(filters.size());
  for (const ListFilter& filter : filters)
    rows.push_back(ruler.AddRow(QStringLiteral("build: ") + filter.Name, kBuildAim, Unit::Page));
  for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
    for (std::size_t i = 0; i < filters.size(); ++i)
      ruler.Run(rows[i], [&] { return BuildList(folder, filters[i]); });
  }
}

void MeasureTwoCategories(ContactsFolder& folder, Ruler& ruler) {
  const int row = ruler.AddRow(QStringLiteral("build: two categories"), {}, Unit::Page);
  const std::vector<ListFilter> filters = TwoCategoryFilters();
  for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
    for (const ListFilter& filter : filters)
      ruler.Run(row, [&] { return BuildList(folder, filter); });
  }
}

// A list that is scrolled. Steps return false when something that is there cannot be read.
struct ScrolledList {
  ContactsFolder& Folder;
  ContactCollection Collection;
  int Total = 0;
  int Top = 1;

  bool JumpTo(int top) {
    Top = top;
    return ReadPage(Folder, Collection, Total, Top);
  }
  bool Pages(int step) {
    for (int i = 0; i < kPagesInARow; ++i) {
      if (!JumpTo(Top + step)) return false;
    }
    return true;
  }
  bool LinesDown() {
    ContactRecord record;
    for (int i = 0; i < kLinesInARow; ++i, ++Top) {
      const Oid oid = Folder.OidAt(Collection, Top + kPageRows);
      if (oid == 0 || !Folder.ReadListRow(oid, record)) return false;
    }
    return true;
  }
};

void MeasureScrolling(ContactsFolder& folder, const ListFilter& filter, Ruler& ruler) {
  const auto addRow = [&](const QString& what) {
    return ruler.AddRow(QStringLiteral("%1, %2").arg(what, filter.Name), kScrollAim, Unit::Rows);
  };
  const int jump = addRow(QStringLiteral("thumb"));
  const int forward = addRow(QStringLiteral("page forward"));
  const int back = addRow(QStringLiteral("page back"));
  const int line = addRow(QStringLiteral("line"));
  const ContactCollection collection = Ask(folder, filter).value_or(folder.Items());
  ScrolledList list{.Folder = folder, .Collection = collection, .Total = folder.Count(collection)};
  std::mt19937 random(2);
  for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
    const int top = Any(random, list.Total - kRoomBehind);
    ruler.Run(jump, [&] { return list.JumpTo(top); });
    ruler.RunSeveral(forward, kPagesInARow, [&] { return list.Pages(kRowsOfAStep); });
    ruler.RunSeveral(back, kPagesInARow, [&] { return list.Pages(-kRowsOfAStep); });
    ruler.RunSeveral(line, kLinesInARow, [&] { return list.LinesDown(); });
  }
}

// The names of some contacts anywhere.
std::vector<QString> SomeNames(ContactsFolder& folder, Ruler& ruler) {
  const int count = folder.Count(folder.Items());
  std::mt19937 random(3);
  std::vector<QString> names(200);
  for (QString& name : names) {
    ContactRecord record;
    ruler.Do(QStringLiteral("names"),
             [&] { return folder.ReadListRow(Any(random, count), record); });
    name = record[ContactField::FileAs];
  }
  return names;
}

bool FindByRestriction(ContactsFolder& folder, const QString& name) {
  const ListFilter filter{.Restriction =
                              QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(name)};
  const auto found = Ask(folder, filter);
  return found && folder.OidAt(*found, 1) != 0;
}

void MeasureFinding(ContactsFolder& folder, Ruler& ruler) {
  constexpr QStringView aim = u"0.5 R";
  const int restricted = ruler.AddRow(QStringLiteral("find: [FileAs] = name"), aim, Unit::Rows);
  const int found = ruler.AddRow(QStringLiteral("find: FindByFileAs"), aim, Unit::Rows);
  for (const QString& name : SomeNames(folder, ruler)) {
    ruler.Run(restricted, [&] { return FindByRestriction(folder, name); });
    ruler.Run(found, [&] { return !folder.FindByFileAs(name).empty(); });
  }
}

}  // namespace

void MeasureReading(ContactsFolder& folder, Ruler& ruler) {
  SetUnits(folder, ruler);
  MeasureBuilding(folder, ruler);
  MeasureTwoCategories(folder, ruler);
  MeasureScrolling(folder, ListFilters().front(), ruler);
  MeasureScrolling(folder, IndexButtonFilter(3), ruler);
  MeasureFinding(folder, ruler);
}

}  // namespace quill::bench
