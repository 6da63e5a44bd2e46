// Ink on the clipboard: in the program's own form, and in those that other programs take.
#pragma once

#include <QMimeData>

#include <memory>
#include <optional>

#include "ink/InkNote.h"

namespace quill {

inline constexpr char kInkMimeType[] = "application/x-inkx";

// A page's own bytes, a vector picture, a picture at twice its size, and its text.
std::unique_ptr<QMimeData> InkMimeData(const InkNote& fragment);

// True when there is something that can be put on a page.
bool HoldsInk(const QMimeData& data);
// Ink before text; nothing when it is neither or cannot be read.
std::optional<InkNote> InkFrom(const QMimeData& data);

}  // namespace quill
