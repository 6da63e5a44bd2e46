// Whether the character set of a file of cards has to be chosen, and what a choice makes of it.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

namespace quill {

// The first line, unfolded, whose text is not UTF-8 and does not say its character set; nothing
// when there is none. Reads the device, which is open, to that line.
std::optional<QByteArray> FindUndeclaredText(QIODevice& device);

// The line's value as it reads in this character set, its parts one after the other.
QString TextInCharset(const QByteArray& line, const QByteArray& charset);

}  // namespace quill
