// Offers a draft over the lower end of the sheet's page: take it back, or throw it away. It moves
// nothing of the page.
#pragma once

#include <QWidget>

#include <functional>

#include "editor/Draft.h"
#include "platform/ui/Window.h"

class QLabel;
class QPushButton;

namespace quill {

class CDraftBar : public QWidget {
  Q_OBJECT
 public:
  explicit CDraftBar(QWidget* sheet);

  // Shows what the draft is of, in the lower end of this area of the sheet.
  void Offer(const Draft& draft, const QRect& area);
  ControlMap Controls() const;

  std::function<void()> RestoreAsked;
  std::function<void()> DiscardAsked;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* m_text;
  QPushButton* m_restore;
  QPushButton* m_discard;
};

}  // namespace quill
