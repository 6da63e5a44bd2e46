// What painted rows hold, told apart for tests.
#pragma once

#include <vector>

#include "platform/PaintedRow.h"

namespace quill::test {

// Every UTF-16 unit is ten pixels wide.
inline double TenEach(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

inline std::vector<PaintedItem> TextsOf(const PaintedRow& row) {
  std::vector<PaintedItem> texts;
  for (const PaintedItem& item : row.Items)
    if (!item.Text.isEmpty()) texts.push_back(item);
  return texts;
}

inline std::vector<PaintedItem> FillsOf(const PaintedRow& row) {
  std::vector<PaintedItem> fills;
  for (const PaintedItem& item : row.Items)
    if (item.Fill) fills.push_back(item);
  return fills;
}

inline std::vector<PaintedItem> PicturesOf(const PaintedRow& row) {
  std::vector<PaintedItem> pictures;
  for (const PaintedItem& item : row.Items)
    if (item.Picture) pictures.push_back(item);
  return pictures;
}

}  // namespace quill::test
