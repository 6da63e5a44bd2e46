// The driver's foot in one QApplication: a timer, the end of the input that can be read, and an eye
// on whether the event loop has come to rest. Made and destroyed with the application.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <functional>

namespace quill::driver {

class ShellLink : public QObject {
 public:
  struct Calls {
    std::function<void()> Tick;
    std::function<void()> Readable;
  };
  // Watches this file for input while it is open.
  ShellLink(int file, Calls calls);

  // Tick is called once, after so many milliseconds, in whatever loop runs by then.
  void Arm(int milliseconds);
  void StopReading() { m_notifier.setEnabled(false); }
  // True when nothing but the driver's own timer has been delivered since the last call.
  bool WasQuiet();

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QTimer m_timer;
  QSocketNotifier m_notifier;
  bool m_quiet = false;
};

}  // namespace quill::driver
