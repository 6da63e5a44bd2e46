// The log of everything that goes wrong in the store and that the user is not shown.
#pragma once

#include <QLoggingCategory>

namespace quill {

Q_DECLARE_LOGGING_CATEGORY(storeLog)

// While one lives, nothing goes to that log: for who tells the user himself what went wrong. One at
// a time.
class QuietStoreLog {
 public:
  QuietStoreLog();
  ~QuietStoreLog();
  Q_DISABLE_COPY_MOVE(QuietStoreLog)
};

}  // namespace quill
