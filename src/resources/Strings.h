// Texts that more than one window shows.
#pragma once

#include <QStringView>

namespace quill {

inline constexpr QStringView kApplicationTitle = u"Quill (Quillbook)";

}  // namespace quill
