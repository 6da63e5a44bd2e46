#include "platform/ui/DatePicker.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

#include "platform/CalendarLayout.h"
#include "platform/ui/CalendarDlg.h"
#include "platform/ui/DateEdit.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kCheckSize = 13;
constexpr int kCheckGap = 3;
constexpr int kButtonWidth = 17;

// Up and down, which would go to its neighbours, are the picker's.
class CNoneCheck : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isStep = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    isStep ? event->ignore() : QCheckBox::keyPressEvent(event);
  }
};

const CWindow* WindowAround(const QWidget* widget) {
  while (widget && !qobject_cast<const CWindow*>(widget)) widget = widget->parentWidget();
  return qobject_cast<const CWindow*>(widget);
}

}  // namespace

CDatePicker::CDatePicker(NoneCheck none, QWidget* parent)
    : QWidget(parent),
      m_none(none),
      m_check(new CNoneCheck(this)),
      m_edit(new CDateEdit(this)),
      m_button(new QToolButton(this)) {
  m_check->setAccessibleName(QStringLiteral("There is a date"));
  m_check->setVisible(none == NoneCheck::Shown);
  m_check->setChecked(true);
  m_edit->setAccessibleName(QStringLiteral("Date"));
  m_button->setAccessibleName(QStringLiteral("Calendar"));
  m_button->setArrowType(Qt::DownArrow);
  m_button->setFocusPolicy(Qt::NoFocus);
  FollowCheck();
  connect(m_edit, &QDateEdit::dateChanged, this, [this] { TellChanged(); });
  connect(m_check, &QCheckBox::clicked, this, [this] {
    FollowCheck();
    GoToEditor();
    TellChanged();
  });
  connect(m_button, &QToolButton::clicked, this, [this] { OpenCalendar(); });
  connect(qApp, &QApplication::focusChanged, this, &CDatePicker::FocusMoved);
}

// The focus still moves while the parts go.
CDatePicker::~CDatePicker() { disconnect(qApp, nullptr, this, nullptr); }

void CDatePicker::SetDate(std::optional<QDate> date, QDate shownWhenNone) {
  const QSignalBlocker blocker(m_edit);
  m_edit->setDate(KeepInCalendar(date.value_or(shownWhenNone)));
  m_check->setChecked(date || m_none == NoneCheck::Absent);
  FollowCheck();
  m_told = Date();
}

std::optional<QDate> CDatePicker::Date() const {
  return m_check->isChecked() ? std::optional(m_edit->date()) : std::nullopt;
}

QDate CDatePicker::ShownDate() const { return m_edit->date(); }

void CDatePicker::ChooseDate(QDate date) {
  const auto before = Date();
  SetDate(KeepInCalendar(date), {});
  m_told = before;
  TellChanged();
}

void CDatePicker::SetChecked(bool checked) {
  if (HasNoneCheck() && m_check->isChecked() != checked) m_check->click();
}

void CDatePicker::OpenCalendar() {
  CScreen* const screen = ScreenAround(this);
  if (!screen) return;
  setFocus(Qt::MouseFocusReason);
  CommitInput();
  CCalendarDlg calendar(*screen, ShownDate());
  if (calendar.DoModal() == kResultOK) ChooseDate(calendar.Date());
}

void CDatePicker::FollowCheck() {
  m_edit->setEnabled(m_check->isChecked());
  setFocusProxy(m_check->isChecked() ? static_cast<QWidget*>(m_edit) : m_check);
}

// From the check box.
void CDatePicker::GoToEditor() {
  if (!m_check->hasFocus() || !m_check->isChecked()) return;
  m_edit->setFocus(Qt::OtherFocusReason);
  m_edit->setSelectedSection(QDateTimeEdit::MonthSection);
}

// A digit on the empty check box says that there is a day.
bool CDatePicker::BeginTyping(QKeyEvent& event) {
  const QString text = event.text();
  if (!m_check->hasFocus() || text.size() != 1 || !text.front().isDigit()) return false;
  SetChecked(true);
  GoToEditor();
  QCoreApplication::sendEvent(m_edit, &event);
  return true;
}

void CDatePicker::HandOnUpAndDown() { m_edit->HandOnUpAndDown(); }

// The Return key is told of as a change, even if it changes nothing.
void CDatePicker::TellChanged() {
  if (std::exchange(m_told, Date()) != Date() && Changed) Changed();
}

bool CDatePicker::Holds(const QWidget* widget) const { return widget && isAncestorOf(widget); }

// The calendar, a menu and another program hand the focus back.
void CDatePicker::FocusMoved(const QWidget* before, const QWidget* now) {
  if (Holds(before) || Holds(now)) update();
  if (!Holds(before) || Holds(now) || !now) return;
  if (Left && WindowAround(now) == WindowAround(this)) Left();
}

void CDatePicker::keyPressEvent(QKeyEvent* event) {
  const bool alt = event->modifiers().testFlag(Qt::AltModifier);
  const bool opens = event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down);
  if (opens) return OpenCalendar();
  if (!BeginTyping(*event)) QWidget::keyPressEvent(event);
}

void CDatePicker::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Base));
  if (!m_check->hasFocus()) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(m_check->geometry().adjusted(-1, -1, 0, 0));
}

void CDatePicker::resizeEvent(QResizeEvent*) {
  const int left = HasNoneCheck() ? 1 + kCheckSize + kCheckGap : 0;
  m_check->setGeometry(1, (height() - kCheckSize) / 2, kCheckSize, kCheckSize);
  m_edit->setGeometry(left, 0, width() - left - kButtonWidth, height());
  m_button->setGeometry(width() - kButtonWidth, 0, kButtonWidth, height());
}

}  // namespace quill
