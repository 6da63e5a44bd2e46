#include "store/pim/SqlFunctions.h"

#include <sqlite3.h>

#include <array>

#include "store/CategoryText.h"
#include "store/Collation.h"
#include "store/pim/Database.h"
#include "store/pim/EntryKeys.h"

namespace quill {

namespace {

QStringView ViewOf(sqlite3_value* value) {
  const auto* units = static_cast<const char16_t*>(sqlite3_value_text16(value));
  return {units, sqlite3_value_bytes16(value) / static_cast<qsizetype>(sizeof(char16_t))};
}

void Answer(sqlite3_context* context, const QByteArray& key) {
  sqlite3_result_blob64(context, key.isEmpty() ? "" : key.constData(),
                        static_cast<sqlite3_uint64>(key.size()), SQLITE_TRANSIENT);
}

void FoldKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  Answer(context, FoldKey(ViewOf(arguments[0])));
}

void UnitKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  Answer(context, UnitKey(ViewOf(arguments[0])));
}

void CategoriesMatchFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, CategoriesMatch(ViewOf(arguments[0]), ViewOf(arguments[1])) ? 1 : 0);
}

void EntryNumbersFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  const int count = ContactEntryCount(ViewOf(arguments[0]));
  QByteArray numbers = "[0";
  for (int number = 1; number < count; ++number) numbers += ',' + QByteArray::number(number);
  numbers += ']';
  sqlite3_result_text(context, numbers.constData(), static_cast<int>(numbers.size()),
                      SQLITE_TRANSIENT);
}

void EntryKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  const ContactKeyTexts texts{.FileAs = ViewOf(arguments[0]),
                              .CompanyName = ViewOf(arguments[1]),
                              .Categories = ViewOf(arguments[2])};
  Answer(context, ContactEntryKey(texts, sqlite3_value_int(arguments[3])));
}

void SubjectEntryKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  Answer(context, SubjectEntryKey(ViewOf(arguments[0])));
}

struct FunctionRow {
  const char* Name;
  int Arguments;
  void (*Function)(sqlite3_context*, int, sqlite3_value**);
};
constexpr std::array<FunctionRow, 6> kFunctions{{
    {"fold_key", 1, FoldKeyFunction},
    {"unit_key", 1, UnitKeyFunction},
    {"categories_match", 2, CategoriesMatchFunction},
    {"entry_numbers", 1, EntryNumbersFunction},
    {"entry_key", 4, EntryKeyFunction},
    {"subject_entry_key", 1, SubjectEntryKeyFunction},
}};

}  // namespace

int RegisterFunctions(Database& database) {
  for (const FunctionRow& row : kFunctions) {
    const int code =
        sqlite3_create_function_v2(database.Handle(), row.Name, row.Arguments,
                                   SQLITE_UTF16 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                                   row.Function, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) return database.Fail(code);
  }
  return SQLITE_OK;
}

}  // namespace quill
