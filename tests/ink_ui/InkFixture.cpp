#include "ink_ui/InkFixture.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMouseEvent>

#include "ink/ui/InkAccessibility.h"
#include "platform/ui/Look.h"

namespace quill::test {

namespace {

constexpr auto kPenAbilities =
    QInputDevice::Capability::Position | QInputDevice::Capability::Pressure;

}  // namespace

InkFixture::InkFixture(InkAccess access) {
  g_services = {.Clock = &m_clock};
  SetUpLook(*qApp);
  InstallInkAccessibility();
  m_window = std::make_unique<QWidget>();
  m_ink = new InkX(m_window.get(), access);
  TurnPen(QPointingDevice::PointerType::Pen);
  Resize({240, 248});
  m_window->show();
  m_ink->setFocus();
}

InkFixture::~InkFixture() {
  m_window.reset();
  g_services = {};
}

QScrollBar& InkFixture::Bar(Qt::Orientation orientation) {
  for (QScrollBar* bar : m_ink->findChildren<QScrollBar*>())
    if (bar->orientation() == orientation) return *bar;
  qFatal("no such bar");
}

void InkFixture::Resize(QSize size) {
  m_window->resize(size);
  m_ink->setGeometry(QRect(QPoint(), size));
}

QImage InkFixture::Shown() { return m_ink->grab().toImage(); }

void InkFixture::TurnPen(QPointingDevice::PointerType end) {
  m_pen = std::make_unique<QPointingDevice>(
      QStringLiteral("pen"), 7, QInputDevice::DeviceType::Stylus, end, kPenAbilities, 1, 2);
}

void InkFixture::Tablet(QEvent::Type type, const PenPoint& point, Qt::MouseButtons buttons) {
  const bool presses = type != QEvent::TabletMove;
  QTabletEvent event(type, m_pen.get(), point.At, point.At, point.Pressure, 0, 0, 0, 0, 0,
                     Qt::NoModifier, presses ? Qt::LeftButton : Qt::NoButton,
                     type == QEvent::TabletRelease ? Qt::NoButton : buttons);
  QCoreApplication::sendEvent(m_ink, &event);
}

void InkFixture::Stroke(const std::vector<PenPoint>& points) {
  Tablet(QEvent::TabletPress, points.front());
  for (std::size_t i = 1; i < points.size(); ++i) Tablet(QEvent::TabletMove, points[i]);
  Tablet(QEvent::TabletRelease, {points.back().At, 0});
}

void InkFixture::Line(QPointF from, QPointF to) { Stroke({{from}, {(from + to) / 2}, {to}}); }

void InkFixture::Mouse(QEvent::Type type, QPointF at) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, at, at, button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(m_ink, &event);
}

void InkFixture::DragMouse(QPointF from, QPointF to) {
  Mouse(QEvent::MouseButtonPress, from);
  if (from != to) {
    Mouse(QEvent::MouseMove, (from + to) / 2);
    Mouse(QEvent::MouseMove, to);
  }
  Mouse(QEvent::MouseButtonRelease, to);
}

void InkFixture::Key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(m_ink, &press);
}

void InkFixture::Type(const QString& text) {
  for (const QChar letter : text) {
    const bool isReturn = letter == u'\n';
    Key(isReturn ? Qt::Key_Return : 0, Qt::NoModifier, isReturn ? QStringLiteral("\r") : letter);
  }
}

void InkFixture::Input(const QString& preedit, const QString& commit) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  QCoreApplication::sendEvent(m_ink, &event);
}

}  // namespace quill::test
