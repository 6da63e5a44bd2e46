// Offers something that was not saved over the lower end of a window: to take it back, or to throw
// it away. It moves nothing of the window. Ctrl+R and Ctrl+D do the same, wherever in the window
// the focus is; while the bar is out of sight they show it with the focus instead, that nobody
// answers what he does not see.
#pragma once

#include <QWidget>

#include <functional>

#include "platform/ui/Window.h"

class QLabel;
class QPushButton;

namespace quill {

struct OfferIds {
  int Restore;
  int Discard;
};

class COfferBar : public QWidget {
  Q_OBJECT
 public:
  COfferBar(QWidget* window, OfferIds ids);

  // Shows what is offered, in the lower end of this area of the window. While the input panel is up
  // and the bar has not the focus it hides instead: there is no room to spare then.
  void Offer(const QString& text, const QRect& area);
  // Nothing is offered any longer.
  void Withdraw();
  // None while it is hidden.
  ControlMap Controls() const;

  bool HasFocus() const;
  // Gives its first button the focus, or the last one, also of a bar that hides from the panel.
  // False while nothing is offered.
  enum class End { First, Last };
  bool TakeFocus(End end);

  // Tab, or Shift+Tab, leads out of it. False: to the next control of the window.
  std::function<bool(End end)> LeaveAsked = [](End) { return false; };
  std::function<void()> RestoreAsked;
  std::function<void()> DiscardAsked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  // Keys of its window; and when its buttons lose the focus it may have to hide.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Answer(const QKeyEvent& event);

  const OfferIds m_ids;
  QLabel* m_text;
  QPushButton* m_restore;
  QPushButton* m_discard;
  bool m_isOffered = false;
};

}  // namespace quill
