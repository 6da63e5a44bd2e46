#include "store/FileAsName.h"

namespace quill {

namespace {

QString Joined(const QString& first, const QString& second, const QString& between) {
  return first.isEmpty() || second.isEmpty() ? first + second : first + between + second;
}

}  // namespace

QString MakeFileAs(const ContactRecord& record) {
  const QString given = Joined(record[ContactField::FirstName], record[ContactField::MiddleName],
                               QStringLiteral(" "));
  const QString name = Joined(record[ContactField::LastName], given, QStringLiteral(", "));
  return name.isEmpty() ? record[ContactField::CompanyName] : name;
}

}  // namespace quill
