// A button that is on or off: a picture with a short text, which says by its ground and by a mark
// that it is on.
#pragma once

#include <QAbstractButton>

namespace quill {

class CPictureToggle : public QAbstractButton {
  Q_OBJECT
 public:
  CPictureToggle(const QString& text, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quill
