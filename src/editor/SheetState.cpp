#include "editor/SheetState.h"

namespace quill {

SheetState g_sheet;

}  // namespace quill
