#include "editor/SheetRecord.h"

#include <algorithm>
#include <utility>

#include "store/CategoryText.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr std::array kRowSets = {RowSet::Detail, RowSet::Basic, RowSet::NameParts,
                                 RowSet::WorkAddress, RowSet::HomeAddress};
static_assert(kRowSets.size() == kRowSetCount);

constexpr QStringView kMobileBeginning = u"01";
// A number lands under "Job title" or "Department": intended.
constexpr std::size_t kMobileSeedRow = 1;
constexpr std::size_t kWorkSeedRow = 2;

constexpr std::array kNamingFields = {ContactField::FileAs,     ContactField::Title,
                                      ContactField::FirstName,  ContactField::MiddleName,
                                      ContactField::LastName,   ContactField::Suffix,
                                      ContactField::CompanyName};

void PlaceSeed(const QString& seed, SheetRecord& sheet, PhoneFlags& flags) {
  if (seed.isEmpty()) return;
  const bool isMobile = seed.startsWith(kMobileBeginning);
  RowsOf(sheet, RowSet::Basic)[isMobile ? kMobileSeedRow : kWorkSeedRow].Value = seed;
  flags[IndexOf(isMobile ? PhoneFlag::Mobile : PhoneFlag::Work)] = true;
}

QString Followed(const QString& categories, const QString& from, const QString& to) {
  return to.isEmpty() ? RemoveFromCategories(categories, from)
                      : RenameInCategories(categories, from, to);
}

CalendarDate* FindDate(SheetRecord& sheet, RowSet page, int row) {
  const RowRule* const rule = FindRule(page, row);
  return rule && rule->Date ? &sheet.Dates[static_cast<std::size_t>(*rule->Date)] : nullptr;
}

}  // namespace

std::vector<RecordRow>& RowsOf(SheetRecord& sheet, RowSet set) {
  return sheet.Rows[static_cast<std::size_t>(set)];
}

const std::vector<RecordRow>& RowsOf(const SheetRecord& sheet, RowSet set) {
  return sheet.Rows[static_cast<std::size_t>(set)];
}

SheetRecord SheetOf(Oid oid, const QString& fileAs, const ContactRecord& record) {
  SheetRecord sheet{.Oid = oid, .FileAs = fileAs};
  for (const RowSet set : kRowSets) RowsOf(sheet, set) = RowsFrom(record, set);
  for (std::size_t i = 0; i < kContactDates.size(); ++i)
    sheet.Dates[i] = record.*kContactDates[i].Date;
  return sheet;
}

SheetRecord LoadSheet(Oid oid, SheetState& state) {
  g_contactInk = {};
  ContactRecord record;
  // What cannot be read must not be written over: what is entered makes a new contact.
  const Oid read = oid == 0 ? 0 : ReadContact(ContactSelector(oid), record);
  SheetRecord sheet = SheetOf(read, record[ContactField::FileAs], record);
  sheet.Opened = RecordOf(sheet, {});
  sheet.OpenedInk = g_contactInk.Bytes;
  state.PhoneFlags = PhoneFlagsOf(record);
  if (oid == 0) PlaceSeed(std::exchange(state.SeedText, {}), sheet, state.PhoneFlags);
  return sheet;
}

bool HasAnythingToSave(const SheetRecord& sheet) {
  const ContactRecord record = RecordOf(sheet, {});
  return std::ranges::any_of(kNamingFields,
                             [&](ContactField field) { return !record[field].isEmpty(); });
}

ContactRecord RecordOf(const SheetRecord& sheet, const QString& areaCodePrefix) {
  ContactRecord record;
  for (const RowSet set : kRowSets) TakeRows(RowsOf(sheet, set), set, areaCodePrefix, record);
  record[ContactField::FileAs] = sheet.FileAs;
  for (std::size_t i = 0; i < kContactDates.size(); ++i)
    if (sheet.Dates[i].Year != 0) record.*kContactDates[i].Date = sheet.Dates[i];
  return record;
}

void SumUpParts(SheetRecord& sheet, RowSet page) {
  const std::span<const RowRule> rules = RulesOf(page);
  std::vector<RecordRow>& rows = RowsOf(sheet, page);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const RowRule& rule = rules[i];
    if (!rule.Parts) continue;
    const std::vector<RecordRow>& parts = RowsOf(sheet, *rule.Parts);
    rows[i].Value = rule.Kind == RowKind::Name ? NameText(parts) : AddressText(parts);
  }
}

void FollowCategory(SheetRecord& sheet, const QString& from, const QString& to) {
  for (RecordRow& row : RowsOf(sheet, RowSet::Basic))
    if (row.Kind == RowKind::Categories)
      row.Value = CategoryRowText(Followed(CategoriesOfRow(row.Value), from, to));
  QString& opened = sheet.Opened[ContactField::Categories];
  opened = Followed(opened, from, to);
}

CalendarDate DateAt(const SheetRecord& sheet, RowSet page, int row) {
  const RowRule* const rule = FindRule(page, row);
  return rule && rule->Date ? sheet.Dates[static_cast<std::size_t>(*rule->Date)] : CalendarDate{};
}

void SetDateAt(SheetRecord& sheet, RowSet page, int row, const CalendarDate& date) {
  CalendarDate* const slot = FindDate(sheet, page, row);
  if (!slot) return;
  *slot = date;
  RowsOf(sheet, page)[static_cast<std::size_t>(row)].Value = DateText(date);
}

}  // namespace quill
