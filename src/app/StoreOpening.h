// The store opened for one piece of work without a window, and closed at its end. The process-wide
// session has no part in it.
#pragma once

#include <QString>

#include "store/StoreProvider.h"

namespace quill {

class StoreOpening {
 public:
  explicit StoreOpening(StoreProvider& store);
  ~StoreOpening();
  StoreOpening(const StoreOpening&) = delete;
  StoreOpening& operator=(const StoreOpening&) = delete;

  bool Succeeded() const { return m_problem.isEmpty(); }
  // Why it could not be opened, as text for the user.
  const QString& Problem() const { return m_problem; }

 private:
  StoreProvider& m_store;
  QString m_problem;
};

}  // namespace quill
