// How the store compares texts, in one place.
//
// FileAs and CompanyName compare without case: each UTF-16 unit is raised to upper case on its own,
// by its simple mapping (so "ß" stays, and accents, scripts and halves of a surrogate pair are left
// as they are), and the results compare unit by unit. Digits and most signs sort before the Latin
// letters, the other scripts after them: Greek, Cyrillic, Hebrew, Arabic, Han, Hangul. Subject and
// Categories compare unit by unit as they are.
//
// A key is a text in bytes, one to three for each unit (surrogates too), made so that comparing two
// keys with memcmp compares the texts unit by unit. A key that is the beginning of another one
// comes first. No key holds the byte 0, so one may stand between two keys, and the byte 1 never
// begins a unit alone: a key followed by it comes after every text that ends with that key and
// before every longer one.
#pragma once

#include <QByteArray>
#include <QString>

namespace quill {

QString FoldCase(QStringView text);
QByteArray UnitKey(QStringView text);
QByteArray FoldKey(QStringView text);

}  // namespace quill
