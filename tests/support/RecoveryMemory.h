// Recovery files that lie in memory, and that can be made to refuse.
#pragma once

#include <map>

#include "platform/RecoveryFiles.h"

namespace quill::test {

class RecoveryMemory : public RecoveryFiles {
 public:
  std::optional<QByteArray> Read(const QString& name) const override {
    const auto file = Files.find(name);
    return file == Files.end() ? std::nullopt : std::optional(file->second);
  }
  bool Write(const QString& name, const QByteArray& content) override {
    if (IsFull) return false;
    Files[name] = content;
    ++Writes;
    return true;
  }
  bool Append(const QString& name, const QByteArray& bytes) override {
    if (IsFull || !Files.contains(name)) return false;
    Files[name] += bytes;
    return true;
  }
  bool Remove(const QString& name) override {
    Files.erase(name);
    return true;
  }
  bool SetAside(const QString& name) override {
    Aside.push_back(name);
    return Remove(name);
  }

  std::map<QString, QByteArray> Files;
  std::vector<QString> Aside;
  int Writes = 0;
  bool IsFull = false;
};

}  // namespace quill::test
