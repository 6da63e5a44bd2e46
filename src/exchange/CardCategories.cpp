#include "exchange/CardCategories.h"

#include <algorithm>

#include "store/CategoryText.h"

namespace quill {

void CardCategories::Note(const ContactRecord& record) {
  for (const QString& name : SplitCategories(record[ContactField::Categories])) {
    if (m_noted.size() == kMaxLibrary) return;
    if (name.size() <= kCategoryNameLimit && !m_noted.contains(name)) m_noted.append(name);
  }
}

bool CardCategories::AddToLibrary() {
  const QStringList before = m_library.Names();
  const QStringList joined = ValidCategories(before + m_noted);
  m_noted.clear();
  const qsizetype count = std::max(before.size(), std::min(joined.size(), kMaxLibrary));
  return count == before.size() || m_library.SetNames(joined.first(count));
}

}  // namespace quill
