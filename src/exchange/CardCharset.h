// How the bytes of a card become text.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QLocale>
#include <QString>

#include <optional>

namespace quill {

// What is known of a file's bytes before a card says more.
struct CardCharset {
  QByteArray Fallback = "windows-1252";  // for text that is not UTF-8 and does not say what it is
  bool IsUnicode = false;  // the file was UTF-16: its bytes are UTF-8 now, whatever a card declares
};

// The fallback for cards written where the locale is spoken.
QByteArray FallbackCharset(const QLocale& locale);

// Whether text can be read in a character set of this name that contains ASCII, as all do in which
// the lines of a card are written; UTF-16 shows by itself.
bool IsKnownCharset(const QByteArray& name);

// In the declared character set when it is one we know, else in UTF-8; nothing when the bytes are
// no UTF-8, and so nothing says how to read them. What the declared set does not have becomes
// U+FFFD.
std::optional<QString> DecodeCertain(QByteArrayView bytes, const QByteArray& declared);

// The same, else in the fallback. Never fails: what cannot be decoded becomes U+FFFD.
QString DecodeText(QByteArrayView bytes, const QByteArray& declared, const QByteArray& fallback);

}  // namespace quill
