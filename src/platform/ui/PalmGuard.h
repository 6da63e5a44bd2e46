// Keeps a palm from writing: while a pen is near, and shortly after, no touch reaches any window.
// Installed on the application as an event filter; lives as long as one QApplication.
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "platform/PalmFilter.h"

namespace quill {

class PalmGuard : public QObject {
 public:
  PalmGuard();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PalmFilter m_filter;
  QElapsedTimer m_time;
};

}  // namespace quill
