#include "CardGenerator.h"

#include <algorithm>
#include <array>

namespace quill::bench {

namespace {

constexpr std::array kLatinGiven{"Anna",   "Björn", "Chloé", "Darragh", "Elżbieta", "François",
                                 "Grace",  "Håkan", "Inés",  "José",    "Katarína", "Liam",
                                 "Margit", "Noël",  "Oddný", "Priya",   "Quentin",  "Renée"};
constexpr std::array kLatinFamily{
    "Åkesson",   "Brown",  "Castaño", "Dvořák", "Evans", "Fernández", "Gröger", "Hughes", "Ivanova",
    "Jørgensen", "Keller", "Łukasik", "Müller", "Novák", "O'Brien",   "Pérez",  "Quist",  "Şahin"};
constexpr std::array kHangulGiven{"가람", "나래", "도윤", "민지", "서연", "지훈", "하늘", "현우"};
constexpr std::array kHangulFamily{"강", "김", "박", "배", "이", "정", "최", "한"};
constexpr std::array kCompanies{"Harbour Lights Ltd.",     "Grünwald & Söhne", "한빛상사",
                                "Mill, Lane and Partners", "Café Étoile",      "북한산 등산학교"};
constexpr std::array kTitles{"Engineer", "Head of sales", "Directrice", "과장", "Gärtner"};
constexpr std::array kCities{"Bergen", "Köln", "서울", "Córdoba", "Leeds", "Łódź"};
constexpr std::array kGroups{"Friends", "Work", "동창", "Club, north"};

constexpr std::size_t kFoldAt = 75;  // octets

QByteArray Escaped(QByteArray text) {
  return text.replace('\\', "\\\\").replace(',', "\\,").replace(';', "\\;");
}

// Cuts on bytes, also inside a character, as exports do.
QByteArray Folded(const QByteArray& line) {
  QByteArray folded = line.left(kFoldAt);
  for (qsizetype at = kFoldAt; at < line.size(); at += kFoldAt - 1) {
    folded += "\r\n " + line.mid(at, kFoldAt - 1);
  }
  return folded + "\r\n";
}

bool IsAscii(const QByteArray& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// A property of 2.1: quoted-printable with soft breaks where the value is not ASCII.
QByteArray Property21(const QByteArray& name, const QByteArray& value) {
  if (IsAscii(value)) return name + ':' + value + "\r\n";
  QByteArray line = name + ";CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:";
  qsizetype start = 0;
  for (const char c : value) {
    if (line.size() - start > 70) {
      line += "=\r\n";
      start = line.size();
    }
    const bool isPlain = (c & 0x80) == 0 && c != '=';
    line += isPlain ? QByteArray(1, c) : '=' + QByteArray(1, c).toHex().toUpper();
  }
  return line + "\r\n";
}

}  // namespace

struct CardGenerator::Person {
  QByteArray Family;
  QByteArray Given;
  QByteArray Company;  // empty: none
  QByteArray Title;
  QByteArray Mobile;
  QByteArray Work;
  QByteArray Email;
  QByteArray Street;
  QByteArray City;
  QByteArray Group;
  QByteArray Uid;
};

std::size_t CardGenerator::Below(std::size_t limit) { return m_random() % limit; }

bool CardGenerator::OneIn(std::size_t count) { return Below(count) == 0; }

template <typename Words>
QByteArray CardGenerator::Pick(const Words& words) {
  return words[Below(words.size())];
}

QByteArray CardGenerator::Digits(int count) {
  QByteArray digits;
  for (int i = 0; i < count; ++i) digits += static_cast<char>('0' + Below(10));
  return digits;
}

CardGenerator::Person CardGenerator::MakePerson() {
  const bool isKorean = OneIn(3);
  const QByteArray number = QByteArray::number(++m_made);
  Person person;
  person.Family = isKorean ? Pick(kHangulFamily) : Pick(kLatinFamily);
  person.Given = (isKorean ? Pick(kHangulGiven) : Pick(kLatinGiven)) + ' ' + number;
  if (!OneIn(3)) person.Company = Pick(kCompanies);
  person.Title = Pick(kTitles);
  person.Mobile = isKorean ? "010-" + Digits(4) + '-' + Digits(4) : "+47 9" + Digits(7);
  person.Work = isKorean ? "02-" + Digits(3) + '-' + Digits(4) : "+44 20 7" + Digits(7);
  person.Email = "person" + number + "@example.org";
  person.Street = QByteArray::number(Below(200)) + " Long Street of the Old Market, Rear Building";
  person.City = Pick(kCities);
  person.Group = Pick(kGroups);
  person.Uid = "urn:card:" + number + '-' + Digits(12);
  return person;
}

QByteArray CardGenerator::Next() {
  const Person person = MakePerson();
  const std::size_t kind = Below(10);
  if (kind < 3) return Version21(person);
  return kind < 8 ? Version30(person) : Version40(person);
}

QByteArray CardGenerator::Version21(const Person& person) {
  QByteArray card = "BEGIN:VCARD\r\nVERSION:2.1\r\n";
  card += Property21("N", person.Family + ';' + person.Given + ";;;");
  card += Property21("FN", person.Given + ' ' + person.Family);
  if (!person.Company.isEmpty()) card += Property21("ORG", person.Company + ";Unit 3");
  card += Property21("TITLE", person.Title);
  card += Property21("TEL;CELL", person.Mobile) + Property21("TEL;WORK;VOICE", person.Work);
  card += Property21("EMAIL;INTERNET", person.Email);
  card += Property21("ADR;HOME", ";;" + person.Street + ';' + person.City + ";;1000;");
  if (OneIn(40)) card += "PHOTO;ENCODING=BASE64;TYPE=JPEG:\r\n" + Picture() + "\r\n";
  return card + "END:VCARD\r\n";
}

QByteArray CardGenerator::Version30(const Person& person) {
  QByteArray card = "BEGIN:VCARD\r\nVERSION:3.0\r\n";
  card += Folded("N:" + Escaped(person.Family) + ';' + Escaped(person.Given) + ";;;");
  card += Folded("FN:" + Escaped(person.Given + ' ' + person.Family));
  if (!person.Company.isEmpty()) card += Folded("ORG:" + Escaped(person.Company) + ";Unit 3");
  card += Folded("TITLE:" + Escaped(person.Title));
  card += Folded("TEL;TYPE=CELL:" + person.Mobile);
  card += Folded("item1.TEL:" + person.Work) + Folded("item1.X-ABLabel:_$!<Other>!$_");
  card += Folded("EMAIL;TYPE=INTERNET,PREF:" + person.Email);
  card += Folded("ADR;TYPE=WORK:;;" + Escaped(person.Street) + ';' + person.City + ";;1000;");
  card += Folded("CATEGORIES:" + Escaped(person.Group)) + "BDAY:1970-02-28\r\n";
  card += Folded("UID:" + person.Uid);
  if (OneIn(4)) card += Folded("NOTE:" + QByteArray("Met at the fair\\, 부스 12. ").repeated(8));
  if (OneIn(20)) card += "PHOTO;ENCODING=b;TYPE=JPEG:\r\n" + Picture();
  return card + "END:VCARD\r\n";
}

QByteArray CardGenerator::Version40(const Person& person) {
  QByteArray card = "BEGIN:VCARD\r\nVERSION:4.0\r\n";
  card += Folded("N:" + Escaped(person.Family) + ';' + Escaped(person.Given) + ";;;");
  card += Folded("FN:" + Escaped(person.Given + ' ' + person.Family));
  if (!person.Company.isEmpty()) card += Folded("ORG:" + Escaped(person.Company));
  card += Folded("TEL;VALUE=uri;PREF=1;TYPE=\"voice,cell\":tel:" + person.Mobile);
  card += Folded("TEL;TYPE=work:" + person.Work) + Folded("EMAIL:" + person.Email);
  card += Folded("ADR;TYPE=home:;;" + Escaped(person.Street) + ';' + person.City + ";;1000;");
  card += "ANNIVERSARY:20010609\r\n" + Folded("UID:" + person.Uid);
  return card + "END:VCARD\r\n";
}

// Base64 of 3 to 6 kilobytes, folded.
QByteArray CardGenerator::Picture() {
  QByteArray bytes;
  const std::size_t size = 3000 + Below(3000);
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(Below(256));
  const QByteArray text = bytes.toBase64();
  QByteArray lines;
  for (qsizetype at = 0; at < text.size(); at += 74) lines += ' ' + text.mid(at, 74) + "\r\n";
  return lines;
}

}  // namespace quill::bench
