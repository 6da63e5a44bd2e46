#include "store/StoreLog.h"

namespace quill {

Q_LOGGING_CATEGORY(storeLog, "quill.store")

QuietStoreLog::QuietStoreLog() {
  QLoggingCategory::setFilterRules(QStringLiteral("quill.store.warning=false"));
}

QuietStoreLog::~QuietStoreLog() { QLoggingCategory::setFilterRules(QString()); }

}  // namespace quill
