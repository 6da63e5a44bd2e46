#include "cli/ContactPrinter.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "app/Console.h"
#include "store/AutomationDate.h"
#include "store/ContactFields.h"

namespace quill {
namespace {

// Without signs that would act on the terminal; a line feed only where lines may be several.
QString Harmless(QString text) {
  std::replace_if(
      text.begin(), text.end(), [](QChar each) { return each.category() == QChar::Other_Control; },
      QChar(u' '));
  return text;
}

QString DayText(const CalendarDate& date) { return DayOf(date).toString(Qt::ISODate); }

QByteArray JsonLine(Oid oid, const ContactRecord& record) {
  QJsonObject object{{QStringLiteral("Oid"), oid}};
  for (const ContactFieldRow& row : kContactFields) {
    if (!record[row.Field].isEmpty()) object.insert(row.Property.toString(), record[row.Field]);
  }
  for (const ContactDateRow& row : kContactDates) {
    const CalendarDate& date = record.*row.Date;
    if (date.Year != 0) object.insert(row.Property.toString(), DayText(date));
  }
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

void PrintField(QStringView property, const QString& text, QTextStream& out) {
  if (text.isEmpty()) return;
  QStringList lines;
  for (const QString& line : text.split(u'\n')) lines += Harmless(line);
  out << property << ": " << lines.join(QStringLiteral("\n  ")) << '\n';
}

void PrintRecord(const ContactRecord& record, QTextStream& out) {
  for (const ContactFieldRow& row : kContactFields)
    PrintField(row.Property, record[row.Field], out);
  for (const ContactDateRow& row : kContactDates) {
    const CalendarDate& date = record.*row.Date;
    if (date.Year != 0) PrintField(row.Property, DayText(date), out);
  }
}

}  // namespace

void ContactPrinter::Print(Oid oid, const ContactRecord& record) {
  switch (m_form) {
    case PrintForm::Names:
      m_out << Harmless(record[ContactField::FileAs]) << '\n';
      break;
    case PrintForm::Records:
      if (m_hasPrinted) m_out << '\n';
      PrintRecord(record, m_out);
      break;
    case PrintForm::Json:
      m_out << (m_hasPrinted ? ",\n" : "[\n") << JsonLine(oid, record);
      break;
  }
  m_hasPrinted = true;
}

int ContactPrinter::End() {
  if (m_form == PrintForm::Json) m_out << (m_hasPrinted ? "\n]\n" : "[]\n");
  m_out.flush();
  return m_hasPrinted ? kExitDone : kExitPartly;
}

}  // namespace quill
