#include "exchange/CardPool.h"

#include <algorithm>

#include "exchange/CardFields.h"

namespace quill {

namespace {

constexpr int kNotPreferred = 101;  // one more than the least preference that can be written

int PreferenceOf(const CardProperty& property) {
  if (TypesOf(property).contains(u"PREF"_qs)) return 1;
  const int preference = ParameterOf(property, u"PREF").toInt();
  return preference > 0 ? preference : kNotPreferred;
}

}  // namespace

CardPool::CardPool(const Card& card)
    : m_properties(card.Properties), m_taken(card.Properties.size()) {}

std::vector<const CardProperty*> CardPool::All(QStringView name) const {
  std::vector<const CardProperty*> found;
  for (std::size_t i = 0; i < m_properties.size(); ++i) {
    const CardProperty& property = m_properties[i];
    if (!m_taken[i] && !property.IsNested && property.Name == name) found.push_back(&property);
  }
  return found;
}

std::vector<const CardProperty*> CardPool::Preferred(QStringView name) const {
  auto found = All(name);
  const auto before = [](const CardProperty* a, const CardProperty* b) {
    return PreferenceOf(*a) < PreferenceOf(*b);
  };
  std::stable_sort(found.begin(), found.end(), before);
  return found;
}

const CardProperty* CardPool::First(QStringView name) const {
  const auto found = All(name);
  return found.empty() ? nullptr : found.front();
}

const CardProperty* CardPool::Leading(QStringView name) const {
  for (std::size_t i = 0; i < m_properties.size(); ++i) {
    const CardProperty& property = m_properties[i];
    if (property.IsNested || property.Name != name) continue;
    return m_taken[i] ? nullptr : &property;
  }
  return nullptr;
}

void CardPool::Take(const CardProperty& property) {
  m_taken[static_cast<std::size_t>(&property - m_properties.data())] = true;
}

const CardProperty* CardPool::LabelOf(const CardProperty& property) const {
  if (property.Group.isEmpty()) return nullptr;
  for (const CardProperty* label : All(kLabelProperty)) {
    if (label->Group.compare(property.Group, Qt::CaseInsensitive) == 0) return label;
  }
  return nullptr;
}

QString CardPool::Label(const CardProperty& property) const {
  const CardProperty* label = LabelOf(property);
  if (!label) return {};
  QString text = TextOf(*label).trimmed();
  if (text.startsWith(kLabelBegin) && text.endsWith(kLabelEnd)) {
    text = text.sliced(kLabelBegin.size()).chopped(kLabelEnd.size());
  }
  return text;
}

void CardPool::TakeLabel(const CardProperty& property) {
  if (const CardProperty* label = LabelOf(property)) Take(*label);
}

QString CardPool::Rest() const {
  QString lines;
  for (std::size_t i = 0; i < m_properties.size(); ++i) {
    if (!m_taken[i]) lines += CarriedLine(m_properties[i]) + u'\n';
  }
  return lines;
}

}  // namespace quill
