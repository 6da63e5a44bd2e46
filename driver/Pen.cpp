#include "driver/Pen.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTabletEvent>
#include <QWindow>

#include "driver/Targets.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

constexpr qint64 kStylusId = 1;

// The outer window and a point of the screen in its coordinates.
struct OuterPoint {
  QWindow* Window = nullptr;
  QPointF At = {};
  QPointF Global = {};
};

OuterPoint ToOuter(QPointF onScreen) {
  const CScreen* screen = FindScreen();
  if (screen == nullptr || screen->window()->windowHandle() == nullptr) return {};
  QWindow* window = screen->window()->windowHandle();
  const QPointF at = screen->mapTo(screen->window(), onScreen);
  return {window, at, window->mapToGlobal(at)};
}

}  // namespace

void Pen::Press(QPointF at) {
  m_down = true;
  SendMouse(QEvent::MouseButtonPress, at, Qt::LeftButton);
}

// As a press too, without which the window system would bring its release to nobody.
void Pen::PressAgain(QPointF at) {
  Press(at);
  SendMouse(QEvent::MouseButtonDblClick, at, Qt::LeftButton);
}

void Pen::Move(QPointF at) { SendMouse(QEvent::MouseMove, at, Qt::NoButton); }

void Pen::Release(QPointF at) {
  m_down = false;
  SendMouse(QEvent::MouseButtonRelease, at, Qt::LeftButton);
}

void Pen::StrokePress(const StrokePoint& point) {
  m_down = true;
  SendTablet(QEvent::TabletPress, point, Qt::LeftButton);
}

void Pen::StrokeMove(const StrokePoint& point) {
  SendTablet(QEvent::TabletMove, point, Qt::NoButton);
}

void Pen::StrokeRelease(const StrokePoint& point) {
  m_down = false;
  SendTablet(QEvent::TabletRelease, point, Qt::LeftButton);
}

void Pen::Forget() {
  m_down = false;
  m_stylus.reset();
}

void Pen::SendMouse(QEvent::Type type, QPointF at, Qt::MouseButton button) {
  m_position = at;
  const OuterPoint outer = ToOuter(at);
  if (outer.Window == nullptr) return;
  const Qt::MouseButtons buttons = m_down ? Qt::LeftButton : Qt::NoButton;
  QMouseEvent event(type, outer.At, outer.At, outer.Global, button, buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(outer.Window, &event);
}

void Pen::SendTablet(QEvent::Type type, const StrokePoint& point, Qt::MouseButton button) {
  m_position = point.At;
  const OuterPoint outer = ToOuter(point.At);
  if (outer.Window == nullptr) return;
  const Qt::MouseButtons buttons = m_down ? Qt::LeftButton : Qt::NoButton;
  QTabletEvent event(type, &Stylus(), outer.At, outer.Global, point.Pressure, 0, 0, 0, 0, 0,
                     Qt::NoModifier, button, buttons);
  QCoreApplication::sendEvent(outer.Window, &event);
}

const QPointingDevice& Pen::Stylus() {
  using Capability = QInputDevice::Capability;
  if (!m_stylus) {
    m_stylus = std::make_unique<QPointingDevice>(
        QStringLiteral("quill-driver"), kStylusId, QInputDevice::DeviceType::Stylus,
        QPointingDevice::PointerType::Pen, Capability::Position | Capability::Pressure, 1, 1);
  }
  return *m_stylus;
}

}  // namespace quill::driver
