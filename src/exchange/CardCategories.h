// The categories of imported contacts on their way into the category library.
#pragma once

#include <QStringList>

#include "store/StoreProvider.h"

namespace quill {

class CardCategories {
 public:
  static constexpr qsizetype kMaxLibrary = 1'000;  // an import makes no library longer than this

  // The library outlives this.
  explicit CardCategories(CategoryLibrary& library) : m_library(library) {}

  void Note(const ContactRecord& record);

  // Puts what was noted behind the library's names, unless it is there or no name for the library;
  // then nothing is noted any more. False when the store fails.
  bool AddToLibrary();

 private:
  CategoryLibrary& m_library;
  QStringList m_noted;
};

}  // namespace quill
