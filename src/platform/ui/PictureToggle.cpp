#include "platform/ui/PictureToggle.h"

#include <QPainter>

#include "platform/ToggleLayout.h"
#include "platform/ui/RowPainter.h"

namespace quill {

CPictureToggle::CPictureToggle(const QString& text, QWidget* parent) : QAbstractButton(parent) {
  setText(text);
  setCheckable(true);
}

void CPictureToggle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawRow(painter,
          LayOutToggle(
              {.Text = text(), .IsOn = isChecked(), .IsPressed = isDown(), .HasFocus = hasFocus()},
              size()));
}

}  // namespace quill
