// The versions of vCard that are written.
#pragma once

namespace quill {

enum class CardVersion { V21, V30, V40 };

}  // namespace quill
