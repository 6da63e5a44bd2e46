// Whatever bytes come: reading them ends, every card is a contact or is not, and what is made of it
// holds what the card says, so that the same card changes nothing when it comes again.
#include <QBuffer>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"
#include "exchange/CardMapper.h"
#include "exchange/CardMerge.h"

namespace quill::test {
namespace {

QByteArray TextsOf(const ContactItem& item) {
  QStringList texts(item.Record.Texts.begin(), item.Record.Texts.end());
  return (texts.join(u'|') + u'|' + item.Uid + u'\n' + item.CarriedLines).toUtf8();
}

void DemandEqual(const ContactItem& is, const ContactItem& shouldBe, const char* what) {
  if (is == shouldBe) return;
  std::fprintf(stderr, "not so: %s\n%s\n---\n%s\n", what, TextsOf(is).constData(),
               TextsOf(shouldBe).constData());
  std::abort();
}

void LookAt(const Card& card, ContactItem& before) {
  const auto item = ContactFromCard(card);
  if (!item) return;
  DemandEqual(MergedContact(*item, card), *item, "a contact has all that its own card says");
  const ContactItem merged = MergedContact(before, card);
  DemandEqual(MergedContact(merged, card), merged, "a card merged again changes nothing");
  before = *item;
}

}  // namespace

const char* const kFuzzSuffix = ".vcf";

std::vector<QByteArray> FuzzWords() {
  return {"\r\n",
          "\n ",
          ";",
          ":",
          "\\",
          "=",
          "\"",
          ",",
          "=\r\n",
          "BEGIN:VCARD\n",
          "END:VCARD\n",
          "AGENT:\n",
          "VERSION:2.1\n",
          ";ENCODING=QUOTED-PRINTABLE",
          ";BASE64",
          ";CHARSET=EUC-KR",
          "item1.",
          "TEL;CELL:1\n",
          "N:a;b\n",
          "\xFF\xFE",
          "\xB0",
          "\r"};
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quill;
  QBuffer buffer;
  buffer.setData(reinterpret_cast<const char*>(data), static_cast<int>(size));
  buffer.open(QIODevice::ReadOnly);
  CardReader reader(buffer, {"windows-949"}, RawBytes::Kept);
  Card card;
  ContactItem before;
  while (reader.Next(card)) test::LookAt(card, before);
  return 0;
}
