#include "exchange/CardSamples.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cctype>

#include "store/ContactFields.h"

namespace quill::test {

namespace {

CardReader Reader(QBuffer& buffer) {
  buffer.open(QIODevice::ReadOnly);
  return CardReader(buffer, {"windows-949"});
}

QString OneLine(QString text) { return text.replace(u'\\', u"\\\\"_qs).replace(u'\n', u"\\n"_qs); }

QString DescribeDay(QStringView name, const CalendarDate& date) {
  if (date.Year == 0) return {};
  return u"%1=%2-%3-%4 weekday %5\n"_qs.arg(name)
      .arg(date.Year)
      .arg(date.Month, 2, 10, QChar(u'0'))
      .arg(date.Day, 2, 10, QChar(u'0'))
      .arg(date.DayOfWeek);
}

QString DescribeCard(const Card& card) {
  QString text = u"card %1 line %2\n"_qs.arg(card.Ordinal).arg(card.Line);
  const auto item = ContactFromCard(card);
  text += item ? Describe(*item) : u"Fault=NothingToFile\n"_qs;
  if (card.LinesNotUnderstood > 0) {
    text += u"notUnderstood %1\n"_qs.arg(card.LinesNotUnderstood);
  }
  return text;
}

}  // namespace

QByteArray SampleBytes(const QString& fileName) {
  QFile file(QStringLiteral(QUILL_TEST_DATA "/vcards/") + fileName);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
  return file.readAll();
}

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  const QDir folder(QStringLiteral(QUILL_TEST_DATA "/vcards"));
  for (const QString& file : folder.entryList({u"*.vcf"_qs}, QDir::Files, QDir::Name)) {
    names.push_back(file.chopped(4).toStdString());
  }
  return names;
}

std::string TestNameOf(std::string name) {
  const auto isOther = [](unsigned char c) { return !std::isalnum(c); };
  std::replace_if(name.begin(), name.end(), isOther, '_');
  return name;
}

std::vector<Card> ReadCards(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  CardReader reader = Reader(buffer);
  std::vector<Card> cards;
  Card card;
  while (reader.Next(card)) cards.push_back(card);
  return cards;
}

Card CardOf(const QByteArray& properties) {
  const auto cards = ReadCards("BEGIN:VCARD\nVERSION:3.0\n" + properties + "END:VCARD\n");
  EXPECT_EQ(cards.size(), 1U);
  return cards.empty() ? Card() : cards.front();
}

ContactItem ContactOf(const QByteArray& properties) {
  const auto item = ContactFromCard(CardOf(properties));
  EXPECT_TRUE(item.has_value());
  return item.value_or(ContactItem());
}

CardProperty PropertyOf(const QByteArray& line) {
  const auto property = ParseProperty(line, {});
  EXPECT_TRUE(property.has_value()) << line.constData();
  return property.value_or(CardProperty());
}

QString Describe(const ContactItem& item) {
  QString text;
  for (const ContactFieldRow& row : kContactFields) {
    const QString& value = item.Record[row.Field];
    if (!value.isEmpty()) text += row.Property.toString() + u'=' + OneLine(value) + u'\n';
  }
  for (const ContactDateRow& row : kContactDates) {
    text += DescribeDay(row.Property, item.Record.*(row.Date));
  }
  if (!item.Uid.isEmpty()) text += u"Uid="_qs + OneLine(item.Uid) + u'\n';
  if (!item.BodyInk.isEmpty()) {
    text += u"Ink="_qs + QString::fromLatin1(item.BodyInk.toHex()) + u'\n';
  }
  for (const QString& line : item.CarriedLines.split(u'\n', Qt::SkipEmptyParts)) {
    text += u"Carried="_qs + OneLine(line) + u'\n';
  }
  return text;
}

QString Describe(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  CardReader reader = Reader(buffer);
  QString text;
  Card card;
  while (reader.Next(card)) text += DescribeCard(card);
  if (reader.StrayLines() > 0) text += u"stray %1\n"_qs.arg(reader.StrayLines());
  return text;
}

}  // namespace quill::test
