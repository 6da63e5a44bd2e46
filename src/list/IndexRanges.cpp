#include "list/IndexRanges.h"

#include <array>

#include "list/Selection.h"

namespace quill {

namespace {

// The last button wraps round to the first label and so holds digits, signs and other scripts too:
// intended, there is no sixth button.
constexpr std::array<QStringView, kIndexButtonCount> kLabels = {u"A", u"G", u"M", u"S", u"Y"};

bool IsIndexButton(int button) { return button >= 1 && button <= kIndexButtonCount; }

}  // namespace

IndexRange IndexButtonRange(int button) {
  if (!IsIndexButton(button)) return {};
  return {kLabels[button - 1], kLabels[button % kIndexButtonCount]};
}

int IndexButtonAt(int x) {
  if (x < 0 || x >= kIndexButtonCount * kIndexButtonWidth) return 0;
  return x / kIndexButtonWidth + 1;
}

void ChooseIndexButton(ListState& list, int button) {
  if (!IsIndexButton(button)) return;
  const IndexRange range = IndexButtonRange(button);
  list.IndexButton = button;
  list.IndexLower = range.Lower.toString();
  list.IndexUpper = range.Upper.toString();
  list.Filter = FilterKind::Range;
  list.SubFilter = FilterSubKind::IndexRange;
  list.Top = 0;
  DropSelection(list);
}

}  // namespace quill
