#include "editor/ui/DraftBar.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

#include "platform/TextFitting.h"
#include "platform/ui/RowPainter.h"
#include "resources/Ids.h"

namespace quill {

namespace {

constexpr int kHeight = 22;
constexpr QRect kTextArea{4, 3, 112, 16};
constexpr QRect kRestoreArea{122, 1, 56, 20};
constexpr QRect kDiscardArea{180, 1, 58, 20};
constexpr Rgb kBarColor = 0xFFF4CE;

// The name that it is filed under or would be, else the first thing that was entered.
QString TitleOf(const Draft& draft) {
  if (!draft.FileAs.isEmpty()) return draft.FileAs;
  const auto first = std::ranges::find_if_not(draft.Record.Texts, &QString::isEmpty);
  return first == draft.Record.Texts.end() ? QStringLiteral("a contact") : *first;
}

QPushButton* MakeButton(const QString& text, const QRect& area, QWidget* bar) {
  auto* const button = new QPushButton(text, bar);
  button->setGeometry(area);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

CDraftBar::CDraftBar(QWidget* sheet)
    : QWidget(sheet),
      m_text(new QLabel(this)),
      m_restore(MakeButton(QStringLiteral("Restore"), kRestoreArea, this)),
      m_discard(MakeButton(QStringLiteral("Discard"), kDiscardArea, this)) {
  setVisible(false);
  m_text->setGeometry(kTextArea);
  m_text->setTextFormat(Qt::PlainText);
  connect(m_restore, &QPushButton::clicked, this, [this] { RestoreAsked(); });
  connect(m_discard, &QPushButton::clicked, this, [this] { DiscardAsked(); });
}

void CDraftBar::Offer(const Draft& draft, const QRect& area) {
  const QString text = QStringLiteral("Not saved: ") + OnOneLine(TitleOf(draft));
  m_text->setText(ElideText(text, kTextArea.width(), NormalTextWidth()));
  setGeometry(area.left(), area.bottom() + 1 - kHeight, area.width(), kHeight);
  show();
  raise();
}

ControlMap CDraftBar::Controls() const {
  if (isHidden()) return {};
  return {{RecordSheetIds::kRestoreDraft, m_restore}, {RecordSheetIds::kDiscardDraft, m_discard}};
}

void CDraftBar::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), QColor::fromRgb(kBarColor));
}

}  // namespace quill
