// A text on several lines, each as high as a line of text anywhere on the pen screen. Words that
// are too long for a line are broken.
#pragma once

#include <QLabel>

namespace quill {

class CTextLabel : public QLabel {
  Q_OBJECT
 public:
  CTextLabel(const QString& text, QWidget* parent);

  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// How high the text becomes at this width, in logical pixels.
int TextHeight(const QString& text, int width);

}  // namespace quill
