// The widget style: Fusion with the small metrics of a 240-pixel screen.
#pragma once

#include <QProxyStyle>

namespace quill {

class PenStyle : public QProxyStyle {
  Q_OBJECT
 public:
  PenStyle();
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
};

}  // namespace quill
