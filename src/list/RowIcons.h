// The picture that stands for a row's icon kind.
#pragma once

#include "list/ListState.h"
#include "resources/Pictures.h"

namespace quill {

// Null for RowIconKind::None.
const resources::Picture* RowPicture(RowIconKind kind);

}  // namespace quill
