// Bytes as "=E4": how older cards write what is not ASCII. Soft line breaks are the reader's
// matter.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace quill {

// Whether "=" and two hexadecimal digits stand at the position.
bool IsQuotedByte(QByteArrayView text, qsizetype position);

// A "=" without two hexadecimal digits stays as it is: careless writers leave it unencoded.
QByteArray DecodeQuotedPrintable(QByteArrayView text);

// The same text in ASCII alone, where a writer left bytes unencoded.
QByteArray AsciiQuotedPrintable(QByteArrayView text);

}  // namespace quill
