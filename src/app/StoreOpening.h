// The store opened for one piece of work without a window, and closed at its end. The process-wide
// session has no part in it.
#pragma once

#include <QString>

#include "store/StoreProvider.h"

namespace quill {

class StoreOpening {
 public:
  // file: the store's, which the problem then names.
  explicit StoreOpening(StoreProvider& store, const QString& file = {});
  ~StoreOpening();
  StoreOpening(const StoreOpening&) = delete;
  StoreOpening& operator=(const StoreOpening&) = delete;

  bool Succeeded() const { return m_problem.isEmpty(); }
  // Why it could not be opened, as text for the user; the log does not say it as well.
  const QString& Problem() const { return m_problem; }

 private:
  StoreProvider& m_store;
  QString m_problem;
};

}  // namespace quill
