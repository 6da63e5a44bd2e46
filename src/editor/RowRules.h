// The rows of a record sheet, one table for each set: what a row is called, what of the contact it
// shows and, read the other way round, what it gives back.
#pragma once

#include <QStringView>

#include <optional>
#include <span>

#include "editor/SheetState.h"
#include "store/ContactFields.h"

namespace quill {

enum class RowKind {
  Categories = 0,
  Text = 1,
  Date = 3,
  DropDown = 5,  // no row of a sheet has it
  ClosingBlank = 6,
  Name = 7,
  Address = 8,
};

// The pages' rows and the rows of their part editors.
enum class RowSet { Detail = 0, Basic = 1, NameParts = 2, WorkAddress = 3, HomeAddress = 4 };

// The contact's dates in the order of kContactDates.
enum class RowDate { Birthday = 0, Anniversary = 1 };

// What is typed into a text row.
enum class RowEntry { Any, Number, Email, Web };

struct RowRule {
  QStringView Label = {};
  RowKind Kind = RowKind::Text;
  std::optional<ContactField> Field = std::nullopt;
  std::optional<RowDate> Date = std::nullopt;
  std::optional<RowSet> Parts = std::nullopt;  // edited behind a row that sums them up
  QStringView EmptyText = {};
  RowEntry Entry = RowEntry::Any;
  std::optional<PhoneFlag> Flag = std::nullopt;
};

inline constexpr int kPageRowCount = 12;
inline constexpr int kPartRowCount = 5;
inline constexpr QStringView kNoDate = u"None";

// The rules of a set, in the order of its rows.
std::span<const RowRule> RulesOf(RowSet set);

// Null for a row that the set does not have; rows are counted from 0.
const RowRule* FindRule(RowSet set, int row);

}  // namespace quill
