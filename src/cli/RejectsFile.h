// The file that keeps the cards which could not be read.
#pragma once

#include <QSaveFile>
#include <QString>

namespace quill {

// Written as a whole: until Finish a file of that name stays as it was, and when nothing was
// written it stays for good.
class RejectsFile {
 public:
  // An empty path: nothing is kept.
  explicit RejectsFile(const QString& path) : m_file(path) {}

  // Each false on failure; Problem tells why, as text for the user.
  bool Open();
  bool Finish();
  QString Problem() const;

  bool IsOneOf(const QStringList& files) const;
  QString Path() const { return m_file.fileName(); }
  // To be written to, between Open and Finish; null when nothing is kept.
  QIODevice* Device() { return m_file.isOpen() ? &m_file : nullptr; }

 private:
  QSaveFile m_file;
};

}  // namespace quill
