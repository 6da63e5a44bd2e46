#include "store/FileAsName.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct NameCase {
  QString Last, First, Middle, Company, FileAs;
};

class FileAsName : public testing::TestWithParam<NameCase> {};

TEST_P(FileAsName, IsMadeOfWhatExists) {
  ContactRecord record;
  record[ContactField::LastName] = GetParam().Last;
  record[ContactField::FirstName] = GetParam().First;
  record[ContactField::MiddleName] = GetParam().Middle;
  record[ContactField::CompanyName] = GetParam().Company;
  record[ContactField::Title] = QStringLiteral("Dr.");
  record[ContactField::Suffix] = QStringLiteral("Jr.");
  EXPECT_EQ(MakeFileAs(record), GetParam().FileAs);
}

const QString kNone;
const QString kAdams = QStringLiteral("Adams");
const QString kJohn = QStringLiteral("John");
const QString kQuincy = QStringLiteral("Quincy");
const QString kBank = QStringLiteral("1st Bank");

INSTANTIATE_TEST_SUITE_P(
    Parts, FileAsName,
    testing::Values(NameCase{kAdams, kJohn, kQuincy, kBank, QStringLiteral("Adams, John Quincy")},
                    NameCase{kAdams, kJohn, kNone, kNone, QStringLiteral("Adams, John")},
                    NameCase{kAdams, kNone, kQuincy, kNone, QStringLiteral("Adams, Quincy")},
                    NameCase{kAdams, kNone, kNone, kBank, kAdams},
                    NameCase{kNone, kJohn, kQuincy, kNone, QStringLiteral("John Quincy")},
                    NameCase{kNone, kJohn, kNone, kBank, kJohn},
                    NameCase{kNone, kNone, kQuincy, kNone, kQuincy},
                    NameCase{kNone, kNone, kNone, kBank, kBank},
                    NameCase{kNone, kNone, kNone, kNone, kNone}));

}  // namespace
}  // namespace quill
