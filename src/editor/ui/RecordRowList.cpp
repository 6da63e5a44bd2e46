#include "editor/ui/RecordRowList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

#include "appointments/SoundNames.h"
#include "editor/AreaCode.h"
#include "editor/RecordRowLayout.h"
#include "editor/ui/RowMenu.h"
#include "platform/Clock.h"
#include "platform/Hold.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"
#include "settings/Settings.h"
#include "store/AutomationDate.h"
#include "store/ui/CategoryChooser.h"

namespace quill {

namespace {

constexpr int kHoldTimer = 6;

}  // namespace

CRecordRowList::CRecordRowList(SheetRecord& record, RowSet page, QWidget* parent)
    : CPaintedWindow(parent, QAccessible::List), m_record(record), m_page(page), m_editors(*this) {
  setFocusPolicy(Qt::StrongFocus);
  m_editors.TextChanged = [this](const QString& text) {
    Entering();
    SetValue(text);
  };
  m_editors.Chosen = [this](const QString& text) { SetValue(text); };
  m_editors.DateChanged = [this](std::optional<QDate> date) {
    Entering();
    SetDateAt(m_record, m_page, m_edited,
              date ? MakeCalendarDate(*date, QTime(0, 0)) : CalendarDate());
    ShowRows();
  };
  m_editors.ItemToAdd = [this] {
    return RowLinkItem(FindRule(m_page, m_edited)->Entry, RowAt(m_edited).Value);
  };
  m_editors.Left = [this] { EndEdit(); };
}

CRecordRowList::~CRecordRowList() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

RecordRow& CRecordRowList::RowAt(int row) {
  return RowsOf(m_record, m_page)[static_cast<std::size_t>(row)];
}

const RecordRow* CRecordRowList::EditedRecordRow() const {
  return m_edited < 0
             ? nullptr
             : &RowsOf(std::as_const(m_record), m_page)[static_cast<std::size_t>(m_edited)];
}

void CRecordRowList::ShowRows() {
  SetRows(LayOutRecordRows(RowsOf(m_record, m_page), {.Top = m_top, .Current = m_edited},
                           NormalTextWidth()));
}

void CRecordRowList::SetTop(int top) {
  m_top = top;
  if (m_edited >= 0) m_editors.Move(RecordEditArea(m_edited, m_top));
  ShowRows();
}

void CRecordRowList::SetValue(const QString& value) {
  if (m_edited < 0) return;
  RowAt(m_edited).Value = value;
  ShowRows();
}

void CRecordRowList::StartEdit(int row) {
  EndEdit();
  if (row < 0 || row >= kRecordRowCount) return;
  m_edited = row;
  m_editors.Name = RowAt(row).Label;
  ShowRows();
  switch (RowAt(row).Kind) {
    case RowKind::Categories:
      return ChooseCategories(row);
    case RowKind::Text:
      return EditText(row);
    case RowKind::Date:
      return EditDate(row);
    case RowKind::DropDown:
      return EditSound(row);
    case RowKind::Name:
    case RowKind::Address:
      return PartsAsked(*FindRule(m_page, row)->Parts);
    case RowKind::ClosingBlank:
      return;
  }
}

void CRecordRowList::ReachRow(int row) {
  if (RowAt(row).Kind != RowKind::Categories) return StartEdit(row);
  EndEdit();
  m_edited = row;
  ShowRows();
}

void CRecordRowList::ChooseCategories(int row) {
  QString names = CategoriesOfRow(RowAt(row).Value);
  std::vector<int> positions;
  const auto follow = [this](const QString& from, const QString& to) {
    FollowCategory(m_record, from, to);
    ShowRows();
    CategoryFollowed(from, to);
  };
  if (!Cate_ShowCategoryList(*ScreenAround(this), 1, names, positions, follow)) return;
  SetValue(CategoryRowText(names));
}

// The prefix comes into the row as typed text does.
void CRecordRowList::EditText(int row) {
  const QString value = RowAt(row).Value;
  const bool prefills = ShouldPrefill(m_page, row, value, g_settings);
  const QString text = prefills ? g_settings.AreaCodePrefix : value;
  m_editors.EditText(RecordEditArea(row, m_top), text, FindRule(m_page, row)->Entry);
  m_editors.Text()->installEventFilter(this);  // once, however often it is asked for
  if (prefills) SetValue(text);
  if (g_services.InputPanel) g_services.InputPanel->Raise();
}

void CRecordRowList::EditDate(int row) {
  const CalendarDate date = DateAt(m_record, m_page, row);
  const auto day = date.Year == 0 ? std::nullopt : std::optional(DayOf(date));
  m_editors.EditDate(RecordEditArea(row, m_top), day, g_services.Clock->Now().date());
}

void CRecordRowList::EditSound(int row) {
  const QStringList sounds =
      SoundNames({QStringLiteral("mp3"), QStringLiteral("wav"), QStringLiteral("wma")});
  m_editors.EditChoice(RecordEditArea(row, m_top), QStringList(kNoDate.toString()) + sounds,
                       RowAt(row).Value);
}

// The focus goes first: what is hidden would hand it on as the Tab key does.
void CRecordRowList::EndEdit() {
  if (m_edited < 0) return;
  CommitInput();  // while the row still takes it
  const int row = std::exchange(m_edited, -1);
  RecordRow& ended = RowAt(row);
  if (ended.Kind == RowKind::Text)
    ended.Value = TextAfterEdit(m_page, row, ended.Value, g_settings);
  if (isAncestorOf(QApplication::focusWidget())) setFocus(Qt::OtherFocusReason);
  m_editors.Hide();
  ShowRows();
}

EditField CRecordRowList::Field() const {
  QLineEdit* const text = m_editors.Text();
  return text && !text->isHidden() ? FieldOf(*text) : EditField();
}

void CRecordRowList::ActivateRow(int row) {
  Tapped();
  StartEdit(row);
}

void CRecordRowList::ShowRowMenu(int row) {
  if (const RowRule* const rule = FindRule(m_page, row))
    quill::ShowRowMenu(*this, Rows()[static_cast<std::size_t>(row)].Rectangle.bottomLeft(),
                       rule->Entry, RowAt(row).Value);
}

void CRecordRowList::PenPress(QPoint at) {
  setFocus(Qt::MouseFocusReason);
  m_pressedAt = at;
  StartHold();
}

void CRecordRowList::PenMove(QPoint at) {
  const bool strays =
      m_pressedAt && (at - *m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
  if (strays) StopHold();
}

// A pen that was dragged to another row edits neither.
void CRecordRowList::PenRelease(QPoint at) {
  StopHold();
  const auto pressed = std::exchange(m_pressedAt, std::nullopt);
  if (!pressed) return;
  const bool isSameRow = RecordRowAt(pressed->y(), m_top) == RecordRowAt(at.y(), m_top);
  Tap(isSameRow ? at : QPoint(0, at.y()));
}

void CRecordRowList::PenCancel() {
  StopHold();
  m_pressedAt.reset();
}

void CRecordRowList::StartHold() { g_services.Timers->Set(*this, kHoldTimer, kHoldMilliseconds); }

void CRecordRowList::StopHold() { g_services.Timers->Kill(*this, kHoldTimer); }

void CRecordRowList::Tap(QPoint at) {
  EndEdit();
  Tapped();
  if (const auto row = RecordRowToEdit(at, m_top)) StartEdit(*row);
}

// Without a press of its own it is the edited row's field that is held.
void CRecordRowList::OnTimer(int) {
  StopHold();
  const auto at = std::exchange(m_pressedAt, std::nullopt);
  const auto row = at ? RecordRowAt(at->y(), m_top) : std::optional(m_edited);
  if (row) ShowRowMenu(*row);
}

bool CRecordRowList::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      StartHold();
      break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      StopHold();
      break;
    case QEvent::InputMethod:  // what is composed is no change yet
      Entering();
      break;
    default:
      break;
  }
  return false;
}

void CRecordRowList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up)
    MoveAsked(RowMove::Previous);
  else if (event->key() == Qt::Key_Down)
    MoveAsked(RowMove::Next);
  else if (event->key() == Qt::Key_Space && m_edited >= 0)
    StartEdit(m_edited);
  else if (m_edited < 0 && BeginsText(*event))
    BeginTyping(*event);
  else
    CPaintedWindow::keyPressEvent(event);
}

void CRecordRowList::BeginTyping(QKeyEvent& key) {
  MoveAsked(RowMove::Next);
  HandToField(key, *this);
}

// Asked by its editors, too.
bool CRecordRowList::focusNextPrevChild(bool next) {
  MoveAsked(next ? RowMove::Next : RowMove::Previous);
  return true;
}

}  // namespace quill
