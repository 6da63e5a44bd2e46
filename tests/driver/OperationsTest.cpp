#include "driver/Operations.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quill::driver {
namespace {

// The first word of each row of the page's tables, sorted.
QStringList NamesOfThePage() {
  QFile document(QStringLiteral(QUILL_DOCS "/inside/driver.md"));
  EXPECT_TRUE(document.open(QIODevice::ReadOnly));
  const QString page = QString::fromUtf8(document.readAll());
  static const QRegularExpression row(QStringLiteral("^\\| `([^` ]+)"),
                                      QRegularExpression::MultilineOption);
  QStringList names;
  for (const QRegularExpressionMatch& match : row.globalMatch(page)) names << match.captured(1);
  names.sort();
  return names;
}

TEST(Operations, TheDocumentHasEachOnce) {
  QStringList names;
  for (const Operation& operation : AllOperations()) names << operation.Name.toString();
  names.sort();
  EXPECT_EQ(NamesOfThePage().join(u'\n').toStdString(), names.join(u'\n').toStdString());
}

}  // namespace
}  // namespace quill::driver
