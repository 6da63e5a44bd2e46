// Settings as the device's registry keeps them: typed values below keys. The names of keys and
// values are compared without case.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace quill {

enum class RegistryKeyState { Failed, Opened, Created };
enum class RegistryStatus { Done, Missing, MoreData };

// Size is the stored block's, in bytes, also when it did not fit; 0 when it is missing.
struct RegistryTextRead {
  RegistryStatus Status = RegistryStatus::Missing;
  int Size = 0;
};

// A number, or a text's block.
using RegistryValue = std::variant<quint32, QByteArray>;

struct RegistryEntry {
  QString Name;
  RegistryValue Value;
};

class RegistryStore {
 public:
  virtual ~RegistryStore() = default;

  // Opens the key, making it when it is missing; tells which.
  virtual RegistryKeyState Create(const QString& key) = 0;

  // Makes the key when it is missing, and replaces the values whatever their types were: all of
  // them or, when they could not be stored, none. False then.
  virtual bool Put(const QString& key, const std::vector<RegistryEntry>& values) = 0;
  bool PutNumber(const QString& key, const QString& name, quint32 value) {
    return Put(key, {{name, value}});
  }
  bool PutText(const QString& key, const QString& name, const QByteArray& block) {
    return Put(key, {{name, block}});
  }

  // Nothing when there is no such number.
  virtual std::optional<quint32> QueryNumber(const QString& key, const QString& name) const = 0;

  // Reads a text's whole block of bytes (UTF-16, low byte first, terminator and fill as they were
  // put) to the buffer's begin. A buffer that is too small stays untouched: MoreData.
  virtual RegistryTextRead QueryText(const QString& key, const QString& name,
                                     std::span<char> buffer) const = 0;
};

}  // namespace quill
