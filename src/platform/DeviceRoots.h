// The folders below which the device's files lie, and what of them is reachable.
//
// Paths here are the desktop's, absolute. Symbolic links count when all they pass through and what
// they lead to stay below the roots; a root itself may be a link to anywhere. A file that another
// program moves between the question and its use is not guarded against.
#pragma once

#include <QString>
#include <QStringList>

class QFileInfo;

namespace quill {

// The device's name of the folder in which its user's documents lie.
inline constexpr QStringView kMyDocuments = u"My Documents";

// They need not exist before something is made in them.
struct DeviceRoots {
  QString Device;       // "\" and what is not below My Documents
  QString MyDocuments;  // "\My Documents"
  // Files of the program itself that may lie below them: neither they nor names that begin like
  // them, such as their journals, are reachable.
  QStringList Own = {};
};

// The path without symbolic links, whether or not the file is there; empty when a link on the way
// leads to nothing, and for an empty path.
QString RealPath(const QString& file);

// The device's path of a file that is there; empty when it is not among the device's files.
QString DevicePathOf(const DeviceRoots& roots, const QString& file);

// Answers for many files of the same roots, whose own places are looked up once.
class DeviceReach {
 public:
  explicit DeviceReach(const DeviceRoots& roots);

  // True for the roots and for what lies below them and is not the program's own. That goes for the
  // name in its folder as well as for what the name leads to.
  bool Includes(const QString& file) const;
  // The same for an entry that was met in a folder which is included; faster.
  bool IncludesIn(const QString& realFolder, const QFileInfo& entry) const;

 private:
  bool IsBelow(const QString& real) const;
  bool IsOwn(const QString& real) const;

  QStringList m_places;  // the roots as they are written
  QStringList m_roots;   // and without links
  QStringList m_own;
};

}  // namespace quill
