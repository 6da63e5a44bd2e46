#include "exchange/QuotedPrintable.h"

namespace quill {

namespace {

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

bool IsQuotedByte(QByteArrayView text, qsizetype position) {
  return position + 2 < text.size() && text[position] == '=' && HexDigit(text[position + 1]) >= 0 &&
         HexDigit(text[position + 2]) >= 0;
}

QByteArray DecodeQuotedPrintable(QByteArrayView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!IsQuotedByte(text, i)) {
      bytes += text[i];
      continue;
    }
    bytes += static_cast<char>(HexDigit(text[i + 1]) * 16 + HexDigit(text[i + 2]));
    i += 2;
  }
  return bytes;
}

QByteArray AsciiQuotedPrintable(QByteArrayView text) {
  QByteArray ascii;
  ascii.reserve(text.size());
  for (const char c : text) {
    if ((c & 0x80) == 0) {
      ascii += c;
    } else {
      ascii += '=' + QByteArray(1, c).toHex().toUpper();
    }
  }
  return ascii;
}

}  // namespace quill
