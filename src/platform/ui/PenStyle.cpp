#include "platform/ui/PenStyle.h"

#include <QStyleFactory>

namespace quill {

PenStyle::PenStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int PenStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                          const QWidget* widget) const {
  switch (metric) {
    case PM_ScrollBarExtent:
      return 13;
    case PM_ScrollBarSliderMin:
      return 12;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 11;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
    case PM_ButtonMargin:
      return 4;
    case PM_DefaultFrameWidth:
    case PM_ComboBoxFrameWidth:
    case PM_SpinBoxFrameWidth:
      return 1;
    case PM_SmallIconSize:
      return 12;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int PenStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                        QStyleHintReturn* result) const {
  switch (hint) {
    case SH_Widget_Animation_Duration:
    case SH_Widget_Animate:
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
    case SH_ScrollBar_ContextMenu:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, result);
  }
}

}  // namespace quill
