// Bytes as "=E4": how older cards write what is not ASCII. Reading leaves the soft line breaks to
// the lines' reader.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace quill {

// Whether "=" and two hexadecimal digits stand at the position.
bool IsQuotedByte(QByteArrayView text, qsizetype position);

// A "=" without two hexadecimal digits stays as it is: careless writers leave it unencoded.
QByteArray DecodeQuotedPrintable(QByteArrayView text);

// UTF-8 text in lines of at most this many bytes, with soft breaks between characters; the first
// one begins at the column. A colon is encoded, so that no line looks like a property of its own,
// and so is a blank where a line may begin or end, since blanks are lost there.
QByteArray EncodeQuotedPrintable(QByteArrayView text, qsizetype column, qsizetype lineLength);

// The same text in ASCII alone, where a writer left bytes unencoded.
QByteArray AsciiQuotedPrintable(QByteArrayView text);

}  // namespace quill
