// Drafts as the text of a file: {"drafts": [{number, oid, fileAs, entered, opened}, ...]}, the last
// two {texts, dates, ink}. Texts and dates stand under the names of the store's properties and are
// left out when empty; a date is its eight parts; ink is base64.
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

#include "editor/Draft.h"

namespace quill {

QByteArray JsonFromDrafts(const std::vector<Draft>& drafts);

// Nothing when the text is not such a list as a whole.
std::optional<std::vector<Draft>> DraftsFromJson(const QByteArray& json);

}  // namespace quill
