// A fixture with one control in a window of its own, and pens, fingers, a mouse and keys for it.
#pragma once

#include <QImage>
#include <QPointingDevice>
#include <QScrollBar>
#include <QTabletEvent>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "ink/ui/InkX.h"
#include "platform/Services.h"
#include "support/FixedClock.h"

namespace quill::test {

struct PenPoint {
  QPointF At;
  qreal Pressure = 0.5;
};

class InkFixture : public testing::Test {
 protected:
  explicit InkFixture(InkAccess access = InkAccess::Write);
  ~InkFixture() override;

  InkX& Ink() { return *m_ink; }
  const InkNote& Note() const { return m_ink->Document().Note(); }
  QString Text() const { return Note().Text.Text; }
  QScrollBar& Bar(Qt::Orientation orientation);
  void Resize(QSize size);
  QImage Shown();

  // A stroke of the pen's tip, or of another end or device.
  void Stroke(const std::vector<PenPoint>& points);
  void Line(QPointF from, QPointF to);
  void Tap(QPointF at) { Stroke({{at}}); }
  void Tablet(QEvent::Type type, const PenPoint& point, Qt::MouseButtons buttons = Qt::LeftButton);
  void TurnPen(QPointingDevice::PointerType end);
  void Mouse(QEvent::Type type, QPointF at);
  void DragMouse(QPointF from, QPointF to);

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
  void Type(const QString& text);
  void Input(const QString& preedit, const QString& commit);

  FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  std::unique_ptr<QWidget> m_window;
  InkX* m_ink = nullptr;  // child of the window

 private:
  std::unique_ptr<QPointingDevice> m_pen;
};

}  // namespace quill::test
