#include "cli/ContactPrinter.h"

#include <gtest/gtest.h>

#include "app/Console.h"

namespace quill::test {
namespace {

ContactRecord Person(const QString& name) {
  ContactRecord record;
  record[ContactField::FileAs] = name;
  return record;
}

ContactRecord PersonWithDates() {
  ContactRecord record = Person(QStringLiteral("Bell\x1B[2J"));
  record[ContactField::HomeAddressStreet] = QStringLiteral("Mill Lane 1\nBack\tdoor");
  record.Birthday = {.Year = 1970, .Month = 2, .Day = 28};
  return record;
}

class ContactPrinterTest : public testing::Test {
 protected:
  QString Printed(PrintForm form, const std::vector<ContactRecord>& records) {
    QString text;
    QTextStream out(&text);
    ContactPrinter printer(form, out);
    Oid oid = 0;
    for (const ContactRecord& record : records) printer.Print(++oid, record);
    m_exitCode = printer.End();
    return text;
  }
  int m_exitCode = -1;
};

TEST_F(ContactPrinterTest, PrintsNothingWhereThereIsNobody) {
  EXPECT_EQ(Printed(PrintForm::Names, {}), QString());
  EXPECT_EQ(m_exitCode, kExitPartly);
  EXPECT_EQ(Printed(PrintForm::Records, {}), QString());
  EXPECT_EQ(Printed(PrintForm::Json, {}), QStringLiteral("[]\n"));
}

TEST_F(ContactPrinterTest, PrintsANameOnALineWithoutTerminalSigns) {
  EXPECT_EQ(Printed(PrintForm::Names, {Person(QStringLiteral("김, 서연")), PersonWithDates()}),
            QStringLiteral("김, 서연\nBell [2J\n"));
  EXPECT_EQ(m_exitCode, kExitDone);
}

TEST_F(ContactPrinterTest, PrintsEveryFieldThatIsThereAndABlankLineBetweenContacts) {
  EXPECT_EQ(Printed(PrintForm::Records, {Person(QStringLiteral("Abel")), PersonWithDates()}),
            QStringLiteral("FileAs: Abel\n\nFileAs: Bell [2J\n"
                           "HomeAddressStreet: Mill Lane 1\n  Back door\nBirthday: 1970-02-28\n"));
}

TEST_F(ContactPrinterTest, PrintsOneJsonArrayWithTextsAsTheyAre) {
  EXPECT_EQ(Printed(PrintForm::Json, {Person(QStringLiteral("Abel")), PersonWithDates()}),
            QStringLiteral("[\n{\"FileAs\":\"Abel\",\"Oid\":1},\n"
                           "{\"Birthday\":\"1970-02-28\",\"FileAs\":\"Bell\\u001b[2J\","
                           "\"HomeAddressStreet\":\"Mill Lane 1\\nBack\\tdoor\",\"Oid\":2}\n]\n"));
}

}  // namespace
}  // namespace quill::test
