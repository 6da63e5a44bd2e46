#include "driver/FaultTable.h"

#include <algorithm>
#include <array>

namespace quill::driver {

namespace {

constexpr std::array<QStringView, 16> kNames = {
    u"store-create",
    u"store-logon",
    u"contacts-folder",
    u"calendar-folder",
    u"restrict",
    u"read",
    u"write",
    u"delete",
    u"save-appointment",
    u"appointment-ink",
    u"memo-folder",
    u"memo-create",
    u"infrared-folder",
    u"infrared-add",
    u"infrared-send",
    u"infrared-receive",
};

}  // namespace

std::span<const QStringView> FaultTable::Names() { return kNames; }

bool FaultTable::IsKnown(QStringView name) {
  return std::find(kNames.begin(), kNames.end(), name) != kNames.end();
}

void FaultTable::Switch(const QString& name, const std::optional<Fault>& fault) {
  m_faults.erase(name);
  if (fault) m_faults.emplace(name, *fault);
}

int FaultTable::CodeOf(QStringView name) const {
  const auto found = m_faults.find(name.toString());
  return found == m_faults.end() ? 0 : found->second.Code;
}

bool FaultTable::Fails(QStringView name, Oid item) const {
  const auto found = m_faults.find(name.toString());
  return found != m_faults.end() && found->second.OnlyItem.value_or(item) == item;
}

}  // namespace quill::driver
