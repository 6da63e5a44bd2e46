#include "exchange/QuotedPrintable.h"

namespace quill {

namespace {

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

constexpr qsizetype kLongestCharacter = 12;  // four bytes, quoted

QByteArray Quoted(char c) { return '=' + QByteArray(1, c).toHex().toUpper(); }

qsizetype CharacterEnd(QByteArrayView text, qsizetype start) {
  qsizetype end = start + 1;
  while (end < text.size() && (text[end] & 0xC0) == 0x80) ++end;
  return end;
}

QByteArray QuotedCharacter(QByteArrayView character) {
  const char first = character.front();
  if (first >= ' ' && first <= '~' && first != '=' && first != ':' && first != '\\') {
    return character.toByteArray();
  }
  QByteArray quoted;
  for (const char c : character) quoted += Quoted(c);
  return quoted;
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

QByteArray EncodeQuotedPrintable(QByteArrayView text, qsizetype column, qsizetype lineLength) {
  QByteArray encoded;
  qsizetype end = 0;
  for (qsizetype i = 0; i < text.size(); i = end) {
    end = CharacterEnd(text, i);
    const bool isLast = end == text.size();
    QByteArray character = QuotedCharacter(text.sliced(i, end - i));
    const bool isNearEnd = isLast || column + 1 + kLongestCharacter >= lineLength;
    if (character == " " && (i == 0 || column == 0 || isNearEnd)) character = Quoted(' ');
    // The mark of the soft break takes a place as well.
    if (column + character.size() + (isLast ? 0 : 1) > lineLength) {
      encoded += "=\r\n";
      column = 0;
    }
    encoded += character;
    column += character.size();
  }
  return encoded;
}

QByteArray AsciiQuotedPrintable(QByteArrayView text) {
  QByteArray ascii;
  ascii.reserve(text.size());
  for (const char c : text) {
    if ((c & 0x80) == 0) {
      ascii += c;
    } else {
      ascii += Quoted(c);
    }
  }
  return ascii;
}

}  // namespace quill
