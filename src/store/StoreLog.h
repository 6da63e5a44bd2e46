// The log of everything that goes wrong in the store and that the user is not shown.
#pragma once

#include <QLoggingCategory>

namespace quill {

Q_DECLARE_LOGGING_CATEGORY(storeLog)

}  // namespace quill
