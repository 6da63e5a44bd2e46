#include "platform/Clock.h"

namespace quill {

QDateTime SystemClock::Now() const { return QDateTime::currentDateTime(); }

}  // namespace quill
