#include "editor/ui/ContactSummaryCard.h"

#include <QCoreApplication>
#include <QEvent>

#include "editor/SummaryLayout.h"
#include "editor/SummaryState.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/PaintedWindow.h"
#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"

namespace quill {

class CCardLines : public CPaintedWindow {
 public:
  explicit CCardLines(QWidget* card) : CPaintedWindow(card, QAccessible::ToolTip) {}
  void Show(const SummaryState& card) {
    resize(card.Place.size());
    SetRows(LayOutCard(card.Lines, NormalTextWidth()));
  }
};

namespace {

bool TakesCardAway(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
    case QEvent::KeyPress:
    case QEvent::Wheel:
    case QEvent::WindowDeactivate:
      return true;
    default:
      return false;
  }
}

}  // namespace

CContactSummaryCard::CContactSummaryCard(CScreen& screen)
    : CWindow(screen), m_lines(new CCardLines(this)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAccessibleName(QStringLiteral("Summary"));
}

CContactSummaryCard::~CContactSummaryCard() { Dismiss(); }

void CContactSummaryCard::ShowFor(Oid oid, int anchorY, int listTop) {
  Dismiss();
  g_card = LoadCard(oid, anchorY, listTop);
  if (g_card.Contact == 0) return;
  m_lines->Show(g_card);
  setGeometry(g_card.Place);
  Screen().Push(*this);
  show();
  raise();
  QCoreApplication::instance()->installEventFilter(this);
}

void CContactSummaryCard::Dismiss() {
  if (isHidden()) return;
  QCoreApplication::instance()->removeEventFilter(this);
  hide();
  Screen().Remove(*this);
  g_card = {};
}

// What is pressed goes on to whom it was meant for. A window that opens does not lie over a card.
bool CContactSummaryCard::eventFilter(QObject* watched, QEvent* event) {
  const bool isWindow = event->type() == QEvent::Show && qobject_cast<CModalWindow*>(watched);
  if (isWindow || TakesCardAway(event->type())) Dismiss();
  return false;
}

}  // namespace quill
