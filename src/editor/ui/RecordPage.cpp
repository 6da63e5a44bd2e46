#include "editor/ui/RecordPage.h"

#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

#include "editor/RecordRowLayout.h"
#include "editor/ui/EditCommands.h"
#include "editor/ui/PartEditor.h"
#include "editor/ui/RecordRowList.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"
#include "resources/Ids.h"
#include "resources/Menus.h"

namespace quill {

namespace {

constexpr int kEditTimer = 1;

PanelState Panel() {
  return g_services.InputPanel && g_services.InputPanel->IsUp() ? PanelState::Up : PanelState::Down;
}

std::optional<SheetScroll> RequestOf(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
      return SheetScroll::LineUp;
    case QAbstractSlider::SliderSingleStepAdd:
      return SheetScroll::LineDown;
    case QAbstractSlider::SliderPageStepSub:
      return SheetScroll::PageUp;
    case QAbstractSlider::SliderPageStepAdd:
      return SheetScroll::PageDown;
    case QAbstractSlider::SliderMove:
      return SheetScroll::ThumbTrack;
    default:
      return std::nullopt;
  }
}

}  // namespace

CRecordPage::CRecordPage(CSheet& sheet, const QString& title, SheetRecord& record, RowSet rows)
    : CSheetPage(sheet, title),
      m_record(record),
      m_set(rows),
      m_rows(new CRecordRowList(record, rows, this)) {
  m_rows->setAccessibleName(title);
  m_rows->setGeometry(kRecordListArea);
  ListenToRows();
}

CRecordPage::~CRecordPage() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void CRecordPage::ListenToRows() {
  m_rows->Tapped = [this] {
    CloseParts();
    SumUp();
  };
  m_rows->PartsAsked = [this](RowSet parts) { ShowParts(parts); };
  m_rows->Entering = [this] { ScrollToShow(m_rows->EditedRow()); };
  m_rows->CategoryFollowed = [this](const QString& from, const QString& to) {
    CategoryFollowed(from, to);
  };
  m_rows->MoveAsked = [this](RowMove move) { MoveEdit(move); };
}

void CRecordPage::AddScrollBar(int id) {
  m_scrollBar = new QScrollBar(Qt::Vertical, this);
  m_scrollBar->setAccessibleName(QStringLiteral("Scroll bar"));
  m_scrollBar->setGeometry(kRecordScrollBarArea);
  m_scrollBar->setFocusPolicy(Qt::NoFocus);
  connect(m_scrollBar, &QScrollBar::actionTriggered, this, &CRecordPage::Scroll);
  AddControl(id, m_scrollBar);
}

void CRecordPage::AddPartEditor(CPartEditor& editor) {
  m_partEditors.push_back(&editor);
  editor.MoveAsked = [this](RowMove move) { MoveEdit(move); };
}

void CRecordPage::AddEditCommands(EditEnabling enabling) {
  EditCommandFields fields{.Active = [this] { return ActiveField(); }};
  if (enabling == EditEnabling::ByField) fields.Undoable = [this] { return m_rows->Field(); };
  m_commands = MakeEditCommands(fields);
}

void CRecordPage::LoadRows() { m_rows->ShowRows(); }

void CRecordPage::BecomeInactive() { EndEdits(); }

bool CRecordPage::IsEditing() const { return m_rows->EditedRow() >= 0 || OpenParts(); }

void CRecordPage::EndEdits() {
  m_rows->EndEdit();
  CloseParts();
}

ControlMap CRecordPage::Controls() const {
  ControlMap controls = CSheetPage::Controls();
  controls.merge(m_rows->Controls());
  for (const CPartEditor* editor : m_partEditors) controls.merge(editor->Controls());
  return controls;
}

MenuBarModel CRecordPage::MenuBar() const {
  return {{Sheet().Screen().InputPanelButton()}, BuildMenus(resources::kTextMenu, Route())};
}

CommandRoute CRecordPage::Route() const {
  CommandRoute route;
  route.Add(*m_commands);
  return route;
}

bool CRecordPage::ShowContextMenu() {
  if (m_rows->EditedRow() < 0) return false;
  m_rows->ShowRowMenu(m_rows->EditedRow());
  return true;
}

void CRecordPage::OnTimer(int id) {
  g_services.Timers->Kill(*this, id);
  if (id == kEditTimer) m_rows->StartEdit(0);
}

CPartEditor* CRecordPage::OpenParts() const {
  const auto open = std::ranges::find_if(m_partEditors, &CPartEditor::isVisible);
  return open == m_partEditors.end() ? nullptr : *open;
}

EditField CRecordPage::ActiveField() const {
  const CPartEditor* const parts = OpenParts();
  return parts ? parts->Field() : m_rows->Field();
}

void CRecordPage::ShowParts(RowSet parts) {
  CloseParts();
  for (CPartEditor* editor : m_partEditors)
    if (editor->Parts() == parts) editor->Open();
}

void CRecordPage::CloseParts() {
  CPartEditor* const open = OpenParts();
  if (!open) return;
  m_rows->setFocus(Qt::OtherFocusReason);
  open->Close();
  SumUp();
}

// The rows before the parts show what was typed into them.
void CRecordPage::SumUp() {
  SumUpParts(m_record, m_set);
  m_rows->ShowRows();
}

// Where nothing is edited, Tab leads to the first row and back from there it leads out.
void CRecordPage::MoveEdit(RowMove move) {
  const int from = m_rows->EditedRow();
  const bool isBefore = from < 0 && move == RowMove::Previous;
  const auto row = isBefore ? std::nullopt : RowAfterMove(from, move, kRecordRowCount);
  if (row) return EditRow(*row);
  EndEdits();
  if (!LeaveAsked(move)) EnterRows(move);
}

void CRecordPage::EnterRows(RowMove move) {
  EditRow(move == RowMove::Next ? 0 : kRecordRowCount - 1);
}

void CRecordPage::EditRow(int row) {
  EndEdits();
  ScrollToShow(row);
  m_rows->ReachRow(row);
}

void CRecordPage::Scroll(int action) {
  const auto request = RequestOf(action);
  if (!request) return m_scrollBar->setValue(m_rows->Top());
  ScrollTo(SheetTopAfter(*request, m_rows->Top(), Panel(), m_scrollBar->sliderPosition()));
  const RecordRow* const edited = m_rows->EditedRecordRow();
  if (edited && edited->Kind == RowKind::Text) m_rows->StartEdit(m_rows->EditedRow());
}

void CRecordPage::ScrollTo(int top) {
  m_rows->SetTop(top);
  m_scrollBar->setValue(top);
}

void CRecordPage::ScrollToShow(int row) {
  ScrollTo(SheetTopShowing(row, m_rows->Top(), RowsShown(), Panel()));
}

int CRecordPage::RowsShown() const { return RecordRowsShown(height() - kRecordListArea.top()); }

// The input panel came or went.
void CRecordPage::resizeEvent(QResizeEvent* event) {
  m_scrollBar->resize(m_scrollBar->width(), event->size().height());
  m_scrollBar->setRange(0, LargestSheetTop(Panel()));
  int top = SheetTopWithPanel(m_rows->Top(), Panel());
  if (m_rows->EditedRow() >= 0)
    top = SheetTopShowing(m_rows->EditedRow(), top, RowsShown(), Panel());
  ScrollTo(top);
}

CBasicPage::CBasicPage(CSheet& sheet, SheetRecord& record)
    : CRecordPage(sheet, QStringLiteral("Basic"), record, RowSet::Basic) {
  AddScrollBar(RecordSheetIds::kBasicScrollBar);
  AddPartEditor(*new CNamePartEditor(record, this));
  AddPartEditor(*new CAddressPartEditor(record, RowSet::WorkAddress, this));
  AddEditCommands(EditEnabling::ByField);
}

CDetailPage::CDetailPage(CSheet& sheet, SheetRecord& record)
    : CRecordPage(sheet, QStringLiteral("Detail"), record, RowSet::Detail) {
  AddScrollBar(RecordSheetIds::kDetailScrollBar);
  AddPartEditor(*new CAddressPartEditor(record, RowSet::HomeAddress, this));
  AddEditCommands(EditEnabling::Always);
}

}  // namespace quill
