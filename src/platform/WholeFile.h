// Files of the program's own that are only ever written as a whole.
#pragma once

#include <QByteArray>
#include <QString>

namespace quill {

// Replaces the file's content or makes the file, durably: at any moment, also after a loss of
// power, the file is there as a whole, with the old content or the new one. Returns why it could
// not be done, as text for the log, or an empty string.
QString WriteWholeFile(const QString& file, const QByteArray& content);

// Renames the file to NAME.bad, NAME.bad-2, ..., whichever nothing is called yet. Returns
// that name, or an empty string when it could not be done.
QString SetFileAside(const QString& file);

}  // namespace quill
