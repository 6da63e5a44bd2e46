#include "memo/MemoState.h"

namespace quill {

MemoState g_memo;

}  // namespace quill
