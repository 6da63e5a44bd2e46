// Offers something that was not saved over the lower end of a window: to take it back, or to throw
// it away. It moves nothing of the window. Ctrl+R and Ctrl+D do the same, wherever in the window
// the focus is.
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
  // the bar hides instead: there is no room to spare then.
  void Offer(const QString& text, const QRect& area);
  // None while it is hidden.
  ControlMap Controls() const;

  std::function<void()> RestoreAsked;
  std::function<void()> DiscardAsked;

 protected:
  bool eventFilter(QObject* window, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const OfferIds m_ids;
  QLabel* m_text;
  QPushButton* m_restore;
  QPushButton* m_discard;
};

}  // namespace quill
