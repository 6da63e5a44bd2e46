// What is written and read again is what it was: random contacts, with texts that look like the
// syntax of cards.
#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "exchange/CardWriter.h"
#include "exchange/CarriedLines.h"
#include "exchange/RandomContacts.h"
#include "store/ContactFields.h"

namespace quill::test {
namespace {

constexpr int kContacts = 4000;

struct VersionCase {
  const char* Name;
  CardVersion Version;
};

class CardRoundTrips : public testing::TestWithParam<VersionCase> {};

// A property means the same when these are equal.
QString MeaningOf(const CardProperty& property) {
  const QByteArray bytes = BytesOf(property);
  QString meaning = property.Group + u'.' + property.Name + u'=';
  meaning += bytes.isEmpty() ? PartsOf(property, u';').join(QChar(u'|'))
                             : QString::fromLatin1(bytes.toHex());
  if (bytes.isEmpty()) meaning += TypesOf(property).join(u',');
  return meaning;
}

QStringList MeaningsOf(const QString& carried) {
  QStringList meanings;
  for (const CardProperty& property : CarriedProperties(carried)) meanings += MeaningOf(property);
  return meanings;
}

std::string DifferentField(const ContactItem& a, const ContactItem& b) {
  for (const ContactFieldRow& row : kContactFields) {
    if (a.Record[row.Field] != b.Record[row.Field]) return row.Property.toString().toStdString();
  }
  if (a.Record.Birthday != b.Record.Birthday) return "Birthday";
  if (a.Record.Anniversary != b.Record.Anniversary) return "Anniversary";
  if (a.BodyInk != b.BodyInk) return "BodyInk";
  if (a.Uid != b.Uid) return "Uid";
  return "nothing";
}

std::string Different(const ContactItem& a, const ContactItem& b) {
  if (MeaningsOf(a.CarriedLines) != MeaningsOf(b.CarriedLines)) return "CarriedLines";
  return DifferentField(a, b);
}

TEST_P(CardRoundTrips, GiveTheSameContact) {
  RandomContacts contacts(20);
  for (int i = 0; i < kContacts; ++i) {
    const ContactItem item = contacts.Next();
    const QByteArray bytes = WriteCard(item, GetParam().Version);
    const std::vector<Card> cards = ReadCards(bytes);
    ASSERT_EQ(cards.size(), 1U) << i << '\n' << bytes.constData();
    EXPECT_EQ(cards.front().LinesNotUnderstood, 0) << i;
    const auto again = ContactFromCard(cards.front());
    ASSERT_TRUE(again) << i;
    ASSERT_EQ(Different(item, *again), "nothing") << i << '\n' << bytes.constData();
  }
}

TEST_P(CardRoundTrips, KeepTheCardsOfAFileApart) {
  RandomContacts contacts(30);
  std::vector<ContactItem> items;
  QByteArray bytes;
  for (int i = 0; i < 200; ++i) {
    items.push_back(contacts.Next());
    bytes += WriteCard(items.back(), GetParam().Version);
  }
  const std::vector<Card> cards = ReadCards(bytes);
  ASSERT_EQ(cards.size(), items.size());
  for (std::size_t i = 0; i < cards.size(); ++i) {
    EXPECT_EQ(Different(items[i], ContactFromCard(cards[i]).value_or(ContactItem())), "nothing");
  }
}

TEST_P(CardRoundTrips, KeepEveryLineShort) {
  RandomContacts contacts(40);
  for (int i = 0; i < 200; ++i) {
    const QByteArray card = WriteCard(contacts.Next(), GetParam().Version);
    for (const QByteArray& line : card.split('\n')) {
      ASSERT_TRUE(line.isEmpty() || line.endsWith('\r'));
      // The header of 2.1 cannot be folded.
      const bool isHeader = line.endsWith(":=\r");
      ASSERT_TRUE(line.size() <= 76 || isHeader) << line.constData();
      ASSERT_TRUE(line.isValidUtf8());
    }
  }
}

TEST_P(CardRoundTrips, BringEverySampleBack) {
  for (const std::string& name : SampleNames()) {
    for (const Card& card : ReadCards(SampleBytes(QString::fromStdString(name) + u".vcf"_qs))) {
      const auto item = ContactFromCard(card);
      if (!item) continue;
      const QByteArray bytes = WriteCard(*item, GetParam().Version);
      const std::vector<Card> cards = ReadCards(bytes);
      ASSERT_EQ(cards.size(), 1U) << name;
      const ContactItem again = ContactFromCard(cards.front()).value_or(ContactItem());
      EXPECT_EQ(DifferentField(*item, again), "nothing") << name << '\n' << bytes.constData();
      EXPECT_EQ(WriteCard(again, GetParam().Version).toStdString(), bytes.toStdString()) << name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, CardRoundTrips,
                         testing::Values(VersionCase{"V21", CardVersion::V21},
                                         VersionCase{"V30", CardVersion::V30},
                                         VersionCase{"V40", CardVersion::V40}),
                         [](const auto& version) { return version.param.Name; });

class LossyRoundTrips : public testing::TestWithParam<VersionCase> {};

TEST_P(LossyRoundTrips, LoseOnlyWhatNoCardCanHold) {
  ContactItem item;
  item.Record[ContactField::FileAs] = u"a\r\nb\rc"_qs + QChar(u'\0') + QChar(0xD800) + u'd';
  item.Record[ContactField::MobileTelephoneNumber] = u" "_qs;
  item.Record[ContactField::HomeAddressCity] = u"\t"_qs;
  const std::vector<Card> cards = ReadCards(WriteCard(item, GetParam().Version));
  ASSERT_EQ(cards.size(), 1U);
  const auto again = ContactFromCard(cards.front());
  ASSERT_TRUE(again);
  ContactItem expected;
  expected.Record[ContactField::FileAs] = u"a\nb\nc?d"_qs;
  EXPECT_EQ(Different(expected, *again), "nothing")
      << again->Record[ContactField::FileAs].toStdString();
}

INSTANTIATE_TEST_SUITE_P(Versions, LossyRoundTrips,
                         testing::Values(VersionCase{"V21", CardVersion::V21},
                                         VersionCase{"V30", CardVersion::V30},
                                         VersionCase{"V40", CardVersion::V40}),
                         [](const auto& version) { return version.param.Name; });

}  // namespace
}  // namespace quill::test
