// Keeps a palm from writing: while a pen is near, and shortly after, no touch reaches any window;
// a touch that began before the pen came is taken away. While one finger is on a pen widget, a
// second one on another does nothing. Installed on the application as an event filter; lives as
// long as one QApplication.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include "platform/PalmFilter.h"

namespace quill {

class CPenWidget;

class PalmGuard : public QObject {
 public:
  PalmGuard();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool KeepsTouchAway(QObject* watched, const QEvent& event);
  bool IsSecondFinger(CPenWidget& watched, const QEvent& event);

  PalmFilter m_filter;
  QPointer<CPenWidget> m_touched;  // the pen widget that a finger is on
  bool m_tellsProximity = false;   // the pen says when it comes and goes
  QElapsedTimer m_time;
};

}  // namespace quill
