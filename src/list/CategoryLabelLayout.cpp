#include "list/CategoryLabelLayout.h"

#include "list/TapBands.h"

namespace quill {

namespace {

constexpr QRect kTextArea{152, 2, 73, 20};  // in the view
constexpr int kLongName = 9;                // UTF-16 units
constexpr QStringView kSeveral = u"Multi";

}  // namespace

PaintedRow LayOutCategoryLabel(const ListState& list, const TextWidth& width) {
  const QPoint origin = kCategoryLabelArea.topLeft();
  const QString label = list.CategoryCount == 1 ? list.CategoryName : kSeveral.toString();
  const bool isLong = label.size() >= kLongName;
  return {.Rectangle = CategoryTapArea().translated(-origin),
          .SpokenName = QStringLiteral("Category: ") + label,
          .Role = PaintedRole::Button,
          .Items = {{.Rectangle = kTextArea.translated(-origin),
                     .Text = ElideText(label, kTextArea.width(), width),
                     .Alignment = isLong ? TextAlign::Left : TextAlign::Right}}};
}

}  // namespace quill
