#include "store/StoreLog.h"

namespace quill {

Q_LOGGING_CATEGORY(storeLog, "quill.store")

}  // namespace quill
