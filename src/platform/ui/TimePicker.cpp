#include "platform/ui/TimePicker.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

#include "platform/DatePictures.h"
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

CTimePicker::CTimePicker(QWidget* parent)
    : CSectionEdit(QtFormat(kTimePicture), parent), m_button(new QToolButton(this)) {
  setTime({0, 0});
  setWrapping(true);
  m_button->setAccessibleName(QStringLiteral("Times"));
  m_button->setArrowType(Qt::DownArrow);
  m_button->setFocusPolicy(Qt::NoFocus);
  connect(m_button, &QToolButton::clicked, this, [this] { OpenList(); });
  connect(this, &QDateTimeEdit::timeChanged, this, &CTimePicker::TellChanged);
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

// The M of both is taken as well: it says nothing more.
bool CTimePicker::ChooseHalfOfDay(const QKeyEvent& event) {
  const QString letter = event.text().toUpper();
  const bool isLetter = letter.size() == 1 && QStringLiteral("APM").contains(letter);
  if (currentSection() != AmPmSection || !isLetter) return false;
  constexpr int kHalfDay = 12 * 60 * 60;  // seconds
  const QString other = time().hour() < 12 ? QStringLiteral("P") : QStringLiteral("A");
  if (letter == other) setTime(time().addSecs(kHalfDay));
  setSelectedSection(AmPmSection);
  return true;
}

void CTimePicker::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);
  if (event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down)) return OpenList();
  if (!ChooseHalfOfDay(*event)) CSectionEdit::keyPressEvent(event);
}

void CTimePicker::resizeEvent(QResizeEvent* event) {
  CSectionEdit::resizeEvent(event);
  lineEdit()->setTextMargins(0, 0, kButtonWidth, 0);
  m_button->setGeometry(width() - kButtonWidth, 0, kButtonWidth, height());
  m_button->raise();
}

}  // namespace quill
