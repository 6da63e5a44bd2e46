#include "platform/ui/OfferBar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>

#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/TextFitting.h"
#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

constexpr int kHeight = 22;
constexpr QRect kTextArea{4, 3, 134, 16};
constexpr QRect kRestoreArea{140, 1, 48, 20};
constexpr QRect kDiscardArea{190, 1, 48, 20};
constexpr Rgb kBarColor = 0xFFF4CE;

QPushButton* MakeButton(const QString& text, const QRect& area, QWidget* bar) {
  auto* const button = new QPushButton(text, bar);
  button->setGeometry(area);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

bool IsPanelUp() { return g_services.InputPanel && g_services.InputPanel->IsUp(); }

}  // namespace

COfferBar::COfferBar(QWidget* window, OfferIds ids)
    : QWidget(window),
      m_ids(ids),
      m_text(new QLabel(this)),
      m_restore(MakeButton(QStringLiteral("Restore"), kRestoreArea, this)),
      m_discard(MakeButton(QStringLiteral("Discard"), kDiscardArea, this)) {
  setVisible(false);
  m_text->setGeometry(kTextArea);
  m_text->setTextFormat(Qt::PlainText);
  window->installEventFilter(this);
  m_restore->installEventFilter(this);
  m_discard->installEventFilter(this);
  connect(m_restore, &QPushButton::clicked, this, [this] { RestoreAsked(); });
  connect(m_discard, &QPushButton::clicked, this, [this] { DiscardAsked(); });
}

void COfferBar::Offer(const QString& text, const QRect& area) {
  m_text->setText(ElideText(OnOneLine(text), kTextArea.width(), NormalTextWidth()));
  m_text->setAccessibleName(text);
  setGeometry(area.left(), area.bottom() + 1 - kHeight, area.width(), kHeight);
  m_isOffered = true;
  setVisible(!IsPanelUp() || HasFocus());
  raise();
}

void COfferBar::Withdraw() {
  m_isOffered = false;
  hide();
}

bool COfferBar::HasFocus() const { return isAncestorOf(QApplication::focusWidget()); }

bool COfferBar::TakeFocus(End end) {
  if (!m_isOffered) return false;
  show();
  end == End::First ? m_restore->setFocus(Qt::TabFocusReason)
                    : m_discard->setFocus(Qt::BacktabFocusReason);
  return true;
}

// Asked by its buttons.
bool COfferBar::focusNextPrevChild(bool next) {
  const End end = next ? End::Last : End::First;
  const bool isAtEnd = (end == End::Last ? m_discard : m_restore)->hasFocus();
  if (!isAtEnd) return TakeFocus(end);
  return LeaveAsked(end) || QWidget::focusNextPrevChild(next);
}

bool COfferBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget())
    return event->type() == QEvent::KeyPress && m_isOffered &&
           Answer(*static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::FocusOut && IsPanelUp() && !HasFocus()) hide();
  return false;
}

ControlMap COfferBar::Controls() const {
  if (isHidden()) return {};
  return {{m_ids.Restore, m_restore}, {m_ids.Discard, m_discard}};
}

bool COfferBar::Answer(const QKeyEvent& event) {
  const QKeyCombination keys = event.keyCombination();
  const bool restores = keys == QKeyCombination(Qt::CTRL, Qt::Key_R);
  if (!restores && keys != QKeyCombination(Qt::CTRL, Qt::Key_D)) return false;
  if (isHidden()) return TakeFocus(restores ? End::First : End::Last);
  (restores ? m_restore : m_discard)->click();
  return true;
}

void COfferBar::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), QColor::fromRgb(kBarColor));
}

}  // namespace quill
