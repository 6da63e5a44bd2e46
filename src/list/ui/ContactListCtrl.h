// The contact list's rows: paints the page buffer, and turns keys and wheel into scroll requests.
// It never talks to the store; the view fills the page and listens.
#pragma once

#include <functional>

#include "list/Scrolling.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CContactListCtrl : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CContactListCtrl(QWidget* view);

  // Lays the page out again after it was filled.
  void ShowPage();

  // Called with a request and, for ThumbTrack, the position asked for.
  std::function<void(ScrollRequest request, int thumb)> ScrollAsked;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Ask(ScrollRequest request, int thumb = 0);

  int m_wheelRest = 0;  // turned but not yet a whole line, in the wheel's units
};

}  // namespace quill
