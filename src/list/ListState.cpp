#include "list/ListState.h"

namespace quill {

ListState g_list;

}  // namespace quill
