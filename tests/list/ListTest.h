// A fixture with a list state over a real store in memory. Its test programs link quill_list,
// quill_editor and quill_store_pim.
#pragma once

#include <QStringList>

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "list/ListState.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill::test {

class ListTest : public FreshState {
 protected:
  using Field = std::pair<ContactField, QString>;

  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }
  void TearDown() override { CloseSession(); }

  Oid Add(const QString& fileAs, std::initializer_list<Field> fields = {}) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    for (const auto& [field, text] : fields) record[field] = text;
    return m_store.Contacts()->Save(0, record, {});
  }

  // Contacts named 001, 002, ... in one transaction.
  void AddNumbered(int count) {
    const auto transaction = m_store.Begin();
    for (int number = 1; number <= count; ++number) Add(NumberedName(number));
    ASSERT_TRUE(transaction->Commit());
  }

  static QString NumberedName(int number) {
    return QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0'));
  }

  QStringList ShownNames() const {
    QStringList names;
    for (int row = 0; row < m_list.RowsShown; ++row) names.append(m_list.Rows[row].Name);
    return names;
  }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  FaultyStore m_store{m_pimStore};
  ListState m_list;
};

inline QStringList NameList(std::initializer_list<const char16_t*> names) {
  QStringList list;
  for (const char16_t* name : names) list.append(QString::fromUtf16(name));
  return list;
}

}  // namespace quill::test
