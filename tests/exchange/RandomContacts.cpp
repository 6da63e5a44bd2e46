#include "exchange/RandomContacts.h"

#include <QDate>
#include <QStringList>

#include <array>

#include "store/AutomationDate.h"
#include "store/ContactFields.h"

namespace quill::test {

namespace {

constexpr std::array kPieces{u"END:VCARD",
                             u"BEGIN:VCARD",
                             u"=3D=",
                             u"=",
                             u"=0A",
                             u"\n",
                             u"\nEND:VCARD\n",
                             u"\t",
                             u"\\",
                             u"\\n",
                             u"\\\\",
                             u"\\;",
                             u",",
                             u";",
                             u":",
                             u"\"",
                             u" ",
                             u"  ",
                             u"Ann",
                             u"Doe",
                             u"김서연",
                             u"é",
                             u"😀",
                             u"👩‍👩‍👧",
                             u"\u2028",
                             u"\x01",
                             u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789",
                             u"^n",
                             u"a b c d e f g h i j k l m n o p q r s t u v w x y z",
                             u"item1.TEL",
                             u"http://x.org/?a=b",
                             u"010-1234-5678",
                             u"\u00A0",
                             u"ß",
                             u"TEL;TYPE=CELL:1",
                             u"%1"};

constexpr std::array kCarried{
    u"NOTE:one\\, two\\nthree",
    u"NICKNAME:A,B",
    u"item1.X-ABLabel:_$!<HomePage>!$_",
    u"X-ODD;X-P=\"a;b\":c\\;d;e",
    u"GEO:1.5;2.5",
    u"item3.IMPP:xmpp:a@x.org",
    u"X-LONG:0123456789012345678901234567890123456789012345678901234567890123456789é",
    u"PHOTO;TYPE=JPEG;ENCODING=b:QUJDREVGRw==",
    u"ROLE:김; 이",
    u"X-EMPTY:"};

}  // namespace

int RandomContacts::Below(int limit) {
  return static_cast<int>(m_random() % static_cast<unsigned>(limit));
}

QString RandomContacts::Text() {
  QString text;
  const int count = 1 + Below(6);
  for (int i = 0; i < count; ++i) {
    text += QStringView(kPieces[static_cast<std::size_t>(Below(int{kPieces.size()}))]);
  }
  return text.trimmed().isEmpty() ? text + u'x' : text;
}

QString RandomContacts::TextOrNothing() { return Below(3) == 0 ? Text() : QString(); }

// A category has no blanks around it, no comma in it and stands once.
QString RandomContacts::List(QStringView separator) {
  QStringList names;
  const int count = Below(4);
  for (int i = 0; i < count; ++i) names += Text().remove(u',').trimmed();
  names.removeAll(QString());
  names.removeDuplicates();
  return names.join(separator.toString());
}

CalendarDate RandomContacts::DateOrNone() {
  if (Below(2) == 0) return {};
  const QDate first(1900, 1, 1);
  const QDate day = first.addDays(Below(400'000));
  return day.year() == 1604 ? CalendarDate() : MakeCalendarDate(day, {0, 0});
}

QString RandomContacts::CarriedLines() {
  QString lines;
  const int count = Below(4);
  for (int i = 0; i < count; ++i) {
    lines += QStringView(kCarried[static_cast<std::size_t>(Below(int{kCarried.size()}))]);
    lines += u'\n';
  }
  return lines;
}

ContactItem RandomContacts::Next() {
  ContactItem item;
  for (const ContactFieldRow& row : kContactFields) item.Record[row.Field] = TextOrNothing();
  item.Record[ContactField::FileAs] = Text();
  item.Record[ContactField::Categories] = List(u", ");
  if (Below(2) == 0) item.Record[ContactField::Children] = List(u", ");
  item.Record.Birthday = DateOrNone();
  item.Record.Anniversary = DateOrNone();
  if (Below(3) == 0) item.Uid = Text().trimmed();
  if (Below(3) == 0) {
    const int size = 1 + Below(500);
    for (int i = 0; i < size; ++i) item.BodyInk += static_cast<char>(Below(256));
  }
  item.CarriedLines = CarriedLines();
  return item;
}

}  // namespace quill::test
