// The platform calls that are made to fail just now, by name.
#pragma once

#include <QString>

#include <map>
#include <optional>
#include <span>

#include "store/ContactRecord.h"

namespace quill::driver {

inline constexpr int kDefaultFaultCode = 5;

struct Fault {
  int Code = kDefaultFaultCode;
  std::optional<Oid> OnlyItem = std::nullopt;  // none: whatever the item
};

class FaultTable {
 public:
  static std::span<const QStringView> Names();
  static bool IsKnown(QStringView name);

  void Switch(const QString& name, const std::optional<Fault>& fault);
  // The fault's code, 0 when this call is to go through.
  int CodeOf(QStringView name) const;
  bool Fails(QStringView name, Oid item) const;

 private:
  std::map<QString, Fault> m_faults;
};

}  // namespace quill::driver
