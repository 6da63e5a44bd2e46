#include <QGuiApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "ink/ui/InkMarks.h"
#include "ink/ui/InkXParts.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kZoomSteps[] = {25, 50, 75, 100, 125, 150, 200, 300, 400, 600, 800};

int NextZoom(int zoom, int direction) {
  const auto* const begin = std::begin(kZoomSteps);
  const auto* const end = std::end(kZoomSteps);
  if (direction > 0) {
    const auto* const above = std::upper_bound(begin, end, zoom);
    return above == end ? zoom : *above;
  }
  const auto* const from = std::lower_bound(begin, end, zoom);
  return from == begin ? zoom : *std::prev(from);
}

}  // namespace

// Accepted in any case: of what is ignored the window system makes a second, mouse event.
bool InkX::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) PlaceBars();
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (!InkEventReader::Reads(*event)) return QWidget::event(event);
  event->accept();
  TakePen(*event);
  return true;
}

void InkX::TakePen(const QEvent& event) {
  if (InkEventReader::IsCancel(event)) m_parts->Hand.Cancel();
  for (const InkInput& input : m_parts->Reader.Read(event)) {
    const bool presses = input.Phase == InkPhase::Press;
    if (presses && !hasFocus()) setFocus(Qt::MouseFocusReason);
    if (presses) m_parts->ShowsCaret = m_parts->Toggle == kInkPenSelects;
    m_parts->Hand.Take(input);
  }
}

bool InkX::TakeCommandKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Undo)) return Undo(), true;
  if (key.matches(QKeySequence::Redo)) return Redo(), true;
  if (key.matches(QKeySequence::Cut)) return Cut(), true;
  if (key.matches(QKeySequence::Copy)) return Copy(), true;
  if (key.matches(QKeySequence::Paste)) return Paste(), true;
  if (key.matches(QKeySequence::SelectAll)) return SelectAll(), true;
  return key.key() == Qt::Key_Escape && TakeBack();
}

// Escape ends the nearest thing. It does not close a window over ink that is nowhere else.
bool InkX::TakeBack() {
  if (m_parts->Hand.IsDown()) return m_parts->Hand.Cancel(), true;
  if (!HasSelection()) return !m_parts->Document.Steps().isClean();
  m_parts->Selection.SelectNothing();
  return true;
}

bool InkX::TakeScrollKey(const QKeyEvent& key) {
  QScrollBar& bar = *m_parts->Vertical;
  if (key.matches(QKeySequence::MoveToNextPage)) {
    bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
  } else if (key.matches(QKeySequence::MoveToPreviousPage)) {
    bar.triggerAction(QAbstractSlider::SliderPageStepSub);
  } else if (!m_parts->Document.Note().Text.Text.isEmpty()) {
    return false;
  } else if (key.key() == Qt::Key_Down) {
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
  } else if (key.key() == Qt::Key_Up) {
    bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
  } else {
    return false;
  }
  return true;
}

void InkX::keyPressEvent(QKeyEvent* event) {
  const bool isCommand = TakeCommandKey(*event) || TakeScrollKey(*event);
  const bool mayType = !readOnly() && !m_parts->Document.IsLocked();
  const bool isTyping = !isCommand && mayType && m_parts->Typing.TakeEditKey(*event);
  const bool isCaret = !isCommand && !isTyping && m_parts->Typing.TakeCaretKey(*event);
  if (!isCommand && !isTyping && !isCaret) return QWidget::keyPressEvent(event);
  event->accept();
  if (isTyping || isCaret) ShowCaret();
  update();
}

void InkX::inputMethodEvent(QInputMethodEvent* event) {
  if (readOnly() || m_parts->Document.IsLocked()) return event->ignore();
  m_parts->Typing.TakeInput(*event);
  const bool says = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
  if (says) ShowCaret();
  update();
  event->accept();
}

QVariant InkX::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled && readOnly()) return false;
  if (query == Qt::ImCursorRectangle) {
    const QRectF caret = m_parts->Document.TextLayout().Caret(m_parts->Selection.Caret());
    return m_parts->Canvas.View().WindowFromPage(caret);
  }
  const QVariant answer = m_parts->Typing.Query(query);
  return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

// With Ctrl it zooms; what is under the pointer is not what one writes at, so the middle stays.
void InkX::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    const qreal ratio = m_parts->Canvas.View().DevicePixelRatio();
    const QPoint pixels =
        event->pixelDelta().isNull() ? event->angleDelta() / 3 : event->pixelDelta();
    ScrollTo(m_parts->Canvas.View().Scroll() - (QPointF(pixels) * ratio).toPoint());
    return;
  }
  m_parts->Turned += event->angleDelta().y();  // a touchpad turns in many small parts
  if (std::abs(m_parts->Turned) < QWheelEvent::DefaultDeltasPerStep) return;
  SetZoom(NextZoom(Zoom(), std::exchange(m_parts->Turned, 0)));
}

void InkX::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRect(Page());
  for (const QRect& part : event->region()) m_parts->Canvas.Paint(painter, part);
  const InkView& view = m_parts->Canvas.View();
  PaintInkSelection(painter, m_parts->Document, m_parts->Selection, view, m_parts->Hand.Dragged());
  PaintInkLasso(painter, m_parts->Hand.Lasso(), view);
  if (m_parts->ShowsCaret && hasFocus() && !readOnly())
    PaintInkCaret(painter, m_parts->Document, m_parts->Selection.Caret(), view);
  const int below = m_parts->Horizontal->isHidden() ? 0 : m_parts->Horizontal->height();
  PaintInkNotice(painter, m_parts->Document.Notice(), Page().adjusted(0, 0, 0, -below));
}

void InkX::resizeEvent(QResizeEvent*) { PlaceBars(); }

void InkX::showEvent(QShowEvent*) {
  const CScreen* const screen = ScreenAround(this);
  const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
  const auto tap = screen ? screen->Pens().TappedWithin(interval) : std::nullopt;
  if (tap) m_parts->Reader.FollowTap(mapFromGlobal(*tap));
  PlaceBars();
}

// Nothing that was written is lost because the pen is still down.
void InkX::hideEvent(QHideEvent*) { EndGesture(); }
void InkX::focusInEvent(QFocusEvent*) { update(); }
void InkX::focusOutEvent(QFocusEvent*) { update(); }

}  // namespace quill
