// Knows whether a pen, a finger or a mouse button is down anywhere in the application, so that
// nothing opens under it. Installed on the application as an event filter; lives as long as one
// QApplication or shorter.
#pragma once

#include <QObject>

namespace quill {

class PenWatch : public QObject {
 public:
  PenWatch();

  bool IsDown() const { return m_mouse || m_tablet || m_touch; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool m_mouse = false;
  bool m_tablet = false;
  bool m_touch = false;
};

}  // namespace quill
