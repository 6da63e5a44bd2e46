#include "platform/ui/TimePicker.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

#include "platform/DatePictures.h"
#include "platform/ui/EditMenu.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/MenuPopup.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kButtonWidth = 17;
constexpr int kHalfHour = 30 * 60;  // seconds
constexpr int kHalfHours = 48;

int HalfHourOf(QTime time) { return QTime(0, 0).secsTo(time) / kHalfHour; }

QTime TimeOf(int halfHour) { return QTime(0, 0).addSecs(halfHour * kHalfHour); }

// An entry's command is its half hour, one up: 0 means that nothing was chosen.
std::vector<MenuItem> HalfHours(QTime shown) {
  std::vector<MenuItem> items;
  for (int i = 0; i < kHalfHours; ++i)
    items.push_back(
        {.Text = FormatTime(TimeOf(i), kTimePicture), .Id = i + 1, .Checked = TimeOf(i) == shown});
  return items;
}

}  // namespace

CTimePicker::CTimePicker(QWidget* parent) : QTimeEdit(parent), m_button(new QToolButton(this)) {
  setLocale(QLocale::c());
  setDisplayFormat(QtFormat(kTimePicture));
  setButtonSymbols(NoButtons);
  setFrame(false);
  setWrapping(true);
  m_button->setAccessibleName(QStringLiteral("Times"));
  m_button->setArrowType(Qt::DownArrow);
  m_button->setFocusPolicy(Qt::NoFocus);
  connect(m_button, &QToolButton::clicked, this, [this] { OpenList(); });
  connect(this, &QTimeEdit::timeChanged, this, &CTimePicker::TellChanged);
}

void CTimePicker::SetTime(QTime time) {
  const QSignalBlocker blocker(this);
  setTime(time);
  m_told = this->time();
}

// The Return key is told of as a change, even if it changes nothing.
void CTimePicker::TellChanged() {
  if (std::exchange(m_told, time()) != time() && Changed) Changed();
}

void CTimePicker::OpenList() {
  CScreen* const screen = ScreenAround(this);
  if (!screen) return;
  setFocus(Qt::MouseFocusReason);
  CommitInput();
  CMenuPopup popup(*screen, HalfHours(time()), QRect(mapTo(screen, QPoint(0, 0)), size()));
  popup.StartAt(HalfHourOf(time()));
  if (const int chosen = popup.Track()) setTime(TimeOf(chosen - 1));
}

// The menu key comes as a key too: it is taken there.
void CTimePicker::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard)
    ShowEditMenu(*lineEdit(), lineEdit()->mapFrom(this, event->pos()));
}

void CTimePicker::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down)) return OpenList();
  if (IsMenuKey(*event)) return ShowEditMenu(*lineEdit(), lineEdit()->rect().bottomLeft());
  QTimeEdit::keyPressEvent(event);
}

void CTimePicker::resizeEvent(QResizeEvent* event) {
  QTimeEdit::resizeEvent(event);
  lineEdit()->setTextMargins(0, 0, kButtonWidth, 0);
  m_button->setGeometry(width() - kButtonWidth, 0, kButtonWidth, height());
  m_button->raise();
}

}  // namespace quill
