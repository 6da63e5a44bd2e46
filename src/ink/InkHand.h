// What a pen, a finger or a mouse does to the page: it writes, erases, selects, moves what is
// selected, or scrolls.
//
// Points are window pixels; what has to be shown again is told in device pixels of the page.
#pragma once

#include <functional>

#include "ink/InkCanvas.h"
#include "ink/InkCapture.h"
#include "ink/InkSelection.h"

namespace quill {

enum class InkTask { Write, Select, Scroll };

class InkHand {
 public:
  // All three outlive it.
  InkHand(InkDocument& document, InkCanvas& canvas, InkSelection& selection);

  // Ends what is half done.
  void SetTask(InkTask task);

  // At is in window pixels.
  void Take(InkInput input);
  // Takes the gesture back: a stroke in the air goes, what was erased comes back with undo.
  void Cancel();
  // A finger's gesture is taken back: a pen came.
  void CancelFinger();
  // As if lifted: a stroke in the air is written.
  void Finish();
  bool IsDown() const { return m_gesture != Gesture::None; }

  // Where it was last put down or wrote, page pixels; nothing before.
  std::optional<QPointF> LastPlace() const { return m_lastPlace; }
  void ForgetPlace() { m_lastPlace.reset(); }

  // The way of a selection that is being drawn, and how far the selected strokes are being dragged;
  // page pixels.
  QPolygonF Lasso() const;
  QPointF Dragged() const;

  // What is to be seen changed: a part, or more than one part.
  std::function<void(const QRect& device)> Shown;
  std::function<void()> AllShown;
  // The pen was lifted from a stroke that it wrote; page pixels.
  std::function<void(QPointF at)> Wrote;
  std::function<void(QPoint device)> ScrollAsked;

 private:
  enum class Gesture { None, Write, Erase, Select, MoveSelection, MoveText, Scroll };

  Gesture GestureFor(const InkInput& input) const;
  bool BeginsLate(const InkInput& input);
  void Press(const InkInput& input);
  void Lift(InkInput input);
  void Begin(const InkInput& input);
  void Go(const InkInput& input);
  void End(const InkInput& input);
  bool IsTap(QPointF window) const;
  void Write(const InkInput& input);
  void Carry(const InkCaptured& captured);
  void BeginStroke();
  void FinishStroke();
  void EraseTo(QPointF at);
  void SelectStrokesInPath();
  void SelectTextAlongPath();
  void SetCaret(QPointF page);
  bool IsOnSelectedInk(QPointF page) const;
  bool IsOnSelectedText(QPointF page) const;
  void DropSelection();
  void DropText(QPointF page);
  QPointF PageAt(const InkInput& input) const;

  InkDocument& m_document;
  InkCanvas& m_canvas;
  InkSelection& m_selection;
  InkTask m_task = InkTask::Write;
  Gesture m_gesture = Gesture::None;
  InkDevice m_device = InkDevice::Mouse;  // of the gesture
  InkCapture m_capture;
  InkStroke m_stroke;  // in the air
  QPolygonF m_path;    // of another gesture; page pixels
  QPointF m_windowBegin;
  QPoint m_scrollBegin;
  std::optional<InkDevice> m_awaited;  // its press came without pressure
  int m_eraseGesture = 0;
  std::optional<QPointF> m_lastPlace;
};

}  // namespace quill
