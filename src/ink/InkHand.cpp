#include "ink/InkHand.h"

#include <QLineF>

#include <algorithm>
#include <utility>

#include "ink/InkSelect.h"
#include "platform/Clock.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr qreal kTapDistance = 4;      // window pixels within which a drag is still a tap
constexpr qreal kEraserRadius = 5;     // window pixels
constexpr qreal kSelectionMargin = 4;  // window pixels around what is selected, to take hold of it

QPoint Units(QPointF page) { return (page * kInkUnitsPerPixel).toPoint(); }

}  // namespace

InkHand::InkHand(InkDocument& document, InkCanvas& canvas, InkSelection& selection)
    : m_document(document), m_canvas(canvas), m_selection(selection) {}

void InkHand::SetTask(InkTask task) {
  Cancel();
  m_task = task;
}

QPointF InkHand::PageAt(const InkInput& input) const {
  return m_canvas.View().PageFromWindow(input.At);
}

InkHand::Gesture InkHand::GestureFor(const InkInput& input) const {
  if (m_task == InkTask::Scroll) return Gesture::Scroll;
  if (m_document.IsLocked()) return Gesture::Scroll;
  if (input.Device == InkDevice::Eraser) return Gesture::Erase;
  if (m_task == InkTask::Write) return Gesture::Write;
  if (IsOnSelectedInk(PageAt(input))) return Gesture::MoveSelection;
  return IsOnSelectedText(PageAt(input)) ? Gesture::MoveText : Gesture::Select;
}

bool InkHand::IsOnSelectedInk(QPointF page) const {
  if (m_selection.Strokes().empty()) return false;
  const qreal margin = kSelectionMargin * 100 / m_canvas.View().Zoom();
  const QRectF selected = QRectF(QPointF(m_selection.Bounds().topLeft()) / kInkUnitsPerPixel,
                                 QSizeF(m_selection.Bounds().size()) / kInkUnitsPerPixel);
  return selected.adjusted(-margin, -margin, margin, margin).contains(page);
}

bool InkHand::IsOnSelectedText(QPointF page) const {
  const int at = m_document.TextLayout().PositionAt(page);
  return m_document.TextLayout().IsTextAt(page) && m_selection.TextFrom() <= at &&
         at < m_selection.TextTo();
}

// Some drivers tell of a press before they know its pressure: it begins with the first move that
// has some.
bool InkHand::BeginsLate(const InkInput& input) {
  if (input.Phase == InkPhase::Press && !IsTouching(input)) {
    m_awaited = input.Device;
    return false;
  }
  const bool goesOn = input.Phase == InkPhase::Move && !IsTouching(input);
  const bool ends = m_awaited == input.Device && !goesOn;
  if (ends) m_awaited.reset();
  return ends && input.Phase == InkPhase::Move;
}

void InkHand::Take(InkInput input) {
  if (BeginsLate(input)) input.Phase = InkPhase::Press;
  if (input.Phase == InkPhase::Press) return Press(input);
  if (m_gesture == Gesture::Write) return Write(input);
  if (m_gesture == Gesture::None || input.Device != m_device) return;
  if (input.Phase != InkPhase::Move) return End(input);
  if (IsTouching(input)) Go(input);
}

// A press while another one is down ends that one; but while a pen is down no finger and no mouse
// does anything.
void InkHand::Press(const InkInput& input) {
  if (!IsTouching(input) || (IsDown() && IsPen(m_device) && !IsPen(input.Device))) return;
  const Gesture gesture = GestureFor(input);
  const bool writesOn = m_gesture == Gesture::Write && gesture == Gesture::Write;
  if (IsDown() && !writesOn) Lift(input);
  m_gesture = gesture;
  m_device = input.Device;
  gesture == Gesture::Write ? Write(input) : Begin(input);
}

void InkHand::Lift(InkInput input) {
  input.Phase = InkPhase::Release;
  input.Device = m_device;
  m_gesture == Gesture::Write ? Write(input) : End(input);
}

void InkHand::Begin(const InkInput& input) {
  m_path = {PageAt(input)};
  m_windowBegin = input.At;
  m_scrollBegin = m_canvas.View().Scroll();
  if (m_gesture != Gesture::Scroll) m_lastPlace = m_path.first();
  if (m_gesture == Gesture::Erase) {
    ++m_eraseGesture;
    EraseTo(m_path.first());
  }
}

void InkHand::Go(const InkInput& input) {
  const QPointF at = PageAt(input);
  if (m_gesture == Gesture::Scroll) {
    const QPointF way = (m_windowBegin - input.At) * m_canvas.View().DevicePixelRatio();
    return ScrollAsked(m_scrollBegin + way.toPoint());
  }
  if (m_gesture == Gesture::Erase) EraseTo(at);
  m_path.append(at);
  if (m_gesture == Gesture::Select) SelectTextAlongPath();
  if (m_gesture != Gesture::Erase) AllShown();
}

void InkHand::End(const InkInput& input) {
  const bool isTap = IsTap(input.At);
  const bool taps = m_gesture == Gesture::Select || m_gesture == Gesture::MoveSelection ||
                    m_gesture == Gesture::MoveText;
  if (m_gesture == Gesture::MoveSelection && !isTap) DropSelection();
  if (m_gesture == Gesture::MoveText && !isTap) DropText(PageAt(input));
  if (m_gesture == Gesture::Select && !isTap) SelectStrokesInPath();
  if (taps && isTap) SetCaret(m_path.first());
  m_gesture = Gesture::None;
  m_path.clear();
  if (taps) AllShown();
}

void InkHand::SetCaret(QPointF page) {
  m_document.PlaceText(Units(page).y());
  m_selection.SetCaret(m_document.TextLayout().PositionAt(page));
}

// It never went far from where it began.
bool InkHand::IsTap(QPointF window) const {
  const QRectF way = m_path.boundingRect();
  const qreal farthest = std::max(way.width(), way.height()) * m_canvas.View().Zoom() / 100;
  return farthest < kTapDistance && QLineF(m_windowBegin, window).length() < kTapDistance;
}

void InkHand::CancelFinger() {
  if (IsDown() && m_device == InkDevice::Finger) Cancel();
}

void InkHand::Finish() {
  if (m_gesture == Gesture::Write) return Lift({});
  Cancel();
}

void InkHand::Cancel() {
  if (m_canvas.HasStroke()) Shown(m_canvas.CancelStroke());
  m_capture.Reset();
  m_gesture = Gesture::None;
  m_path.clear();
}

void InkHand::Write(const InkInput& input) {
  const bool endless = m_canvas.Paper().IsEndless;
  const qreal width = static_cast<qreal>(UsedPageWidth(m_document.Note().Page)) / kInkUnitsPerPixel;
  m_capture.SetRightEdge(endless ? std::nullopt : std::optional(width));
  InkInput onPage = input;
  onPage.At = PageAt(input);
  const auto captured = m_capture.Take(onPage);
  for (const InkCaptured& each : captured) Carry(each);
  if (m_capture.IsDown()) return;
  m_gesture = Gesture::None;
  // Where the pen only left the page, the view must not move under it.
  if (!captured.empty()) Wrote(*m_lastPlace);
}

void InkHand::Carry(const InkCaptured& captured) {
  if (captured.Action == InkAction::End) return FinishStroke();
  if (captured.Action == InkAction::Begin) BeginStroke();
  m_stroke.Points.push_back(captured.Point);
  m_lastPlace = QPointF(captured.Point.X, captured.Point.Y) / kInkUnitsPerPixel;
  Shown(m_canvas.ExtendStroke(captured.Point));
}

void InkHand::BeginStroke() {
  if (!m_selection.IsEmpty()) AllShown();
  m_selection.SelectNothing();
  m_stroke = {.Parts = InkCapture::PartsOf(m_capture.Device()),
              .Start = g_services.Clock->Now().toMSecsSinceEpoch()};
  m_canvas.BeginStroke(InkPen{}, m_stroke.Parts);
}

void InkHand::FinishStroke() {
  m_canvas.LiftStroke();
  m_document.AddStroke(std::exchange(m_stroke, {}), InkPen{});
  if (m_canvas.HasStroke()) Shown(m_canvas.CancelStroke());  // the page is full
}

void InkHand::EraseTo(QPointF at) {
  const auto radius =
      static_cast<int>(kEraserRadius * 100 / m_canvas.View().Zoom() * kInkUnitsPerPixel);
  m_document.Erase(StrokesAlong(m_document.Note(), Units(m_path.last()), Units(at), radius),
                   m_eraseGesture);
}

// What of the ink a drag takes in is asked once, at its end: it costs the whole page.
void InkHand::SelectStrokesInPath() {
  QPolygon path;
  for (const QPointF at : m_path) path.append(Units(at));
  m_selection.SelectStrokes(StrokesInside(m_document.Note(), DraggedArea(path)));
}

// As a line of writing is selected, while the pen goes on.
void InkHand::SelectTextAlongPath() {
  const InkTextLayout& layout = m_document.TextLayout();
  const int anchor = layout.PositionAt(m_path.first());
  const bool takesText = layout.Bounds().intersects(m_path.boundingRect().adjusted(0, 0, 1, 1));
  m_selection.SelectText(anchor, takesText ? layout.PositionAt(m_path.last()) : anchor);
}

void InkHand::DropSelection() {
  m_selection.SelectStrokes(m_document.Move(m_selection.Strokes(), Units(Dragged())));
}

// What lies between the text's old and new place moves the other way, so all of it is one step.
void InkHand::DropText(QPointF page) {
  const int from = m_selection.TextFrom();
  const int to = m_selection.TextTo();
  const int at = m_document.TextLayout().PositionAt(page);
  if (from <= at && at <= to) return;
  const QString& text = m_document.Note().Text.Text;
  const QString moved = text.mid(from, to - from);
  const bool isForward = at > to;
  const int place = isForward ? at - (to - from) : at;
  if (isForward)
    m_document.Type(from, at, text.mid(to, at - to) + moved);
  else
    m_document.Type(at, to, moved + text.mid(at, from - at));
  m_selection.SelectText(place, place + (to - from));
}

QPolygonF InkHand::Lasso() const { return m_gesture == Gesture::Select ? m_path : QPolygonF(); }

QPointF InkHand::Dragged() const {
  return m_gesture == Gesture::MoveSelection ? m_path.last() - m_path.first() : QPointF();
}

}  // namespace quill
