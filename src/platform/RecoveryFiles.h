// Small files in which the program keeps what would be lost otherwise, until it is asked for.
//
// Nothing throws: each answer says whether it was done, and the log says why not.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quill {

class RecoveryFiles {
 public:
  virtual ~RecoveryFiles() = default;

  // Nothing when there is no such file or it cannot be read.
  virtual std::optional<QByteArray> Read(const QString& name) const = 0;
  // Durable, and as a whole: a failure leaves the old content.
  virtual bool Write(const QString& name, const QByteArray& content) = 0;
  // Puts bytes behind those of a file that is there. They outlive the program at once, a loss of
  // power only later, when the system writes them to the disk. A failure leaves the old content.
  virtual bool Append(const QString& name, const QByteArray& bytes) = 0;
  // True when the file is not there afterwards.
  virtual bool Remove(const QString& name) = 0;
  // Gives a file that cannot be understood another name, under which nothing here reads it. True
  // when the name is free afterwards.
  virtual bool SetAside(const QString& name) = 0;
};

}  // namespace quill
