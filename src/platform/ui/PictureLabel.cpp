#include "platform/ui/PictureLabel.h"

#include <QPainter>

#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

constexpr Rgb kPictureColor = 0x2F5568;

}  // namespace

CPictureLabel::CPictureLabel(const resources::Picture* picture, QWidget* parent)
    : QWidget(parent), m_picture(picture) {}

void CPictureLabel::paintEvent(QPaintEvent*) {
  if (!m_picture) return;
  QPainter painter(this);
  PaintedRow row{.Rectangle = rect()};
  row.Items.push_back({.Rectangle = rect(), .Color = kPictureColor, .Picture = m_picture});
  DrawRow(painter, row);
}

}  // namespace quill
