#include "editor/ui/EditRecordSheet.h"

#include <QKeyEvent>

#include "editor/SheetSaving.h"
#include "editor/ui/ImportedDetailsDlg.h"
#include "editor/ui/MemoPage.h"
#include "editor/ui/RecordPage.h"
#include "exchange/CarriedDetails.h"
#include "platform/InputPanel.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "resources/Menus.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kKeepTimer = 2;
constexpr int kKeepMilliseconds = 2000;

void Tell(const QString& text) { g_services.Prompt->Show({.Text = text}); }

}  // namespace

CEditRecordSheet::CEditRecordSheet(CScreen& screen, const QString& caption)
    : CSheet(screen, caption),
      m_draftBar(
          new COfferBar(this, {RecordSheetIds::kRestoreDraft, RecordSheetIds::kDiscardDraft})),
      m_memoPage(new CMemoPage(*this, m_record)),
      m_commands({{ID_IMPORTED_DETAILS, ID_IMPORTED_DETAILS, [this](int) { ShowImportedDetails(); },
                   [this](int, CommandState& state) { state.Enabled = m_record.Oid != 0; }}}),
      m_panelWasUp(g_services.InputPanel && g_services.InputPanel->IsUp()) {
  AddRecordPage(*new CBasicPage(*this, m_record));
  AddRecordPage(*new CDetailPage(*this, m_record));
  AddPage(*m_memoPage);
  m_draftBar->LeaveAsked = [this](COfferBar::End end) { return EnterRows(end); };
  m_draftBar->RestoreAsked = [this] { RestoreDraft(); };
  m_draftBar->DiscardAsked = [this] { DiscardOffered(); };
}

// Tab leads through the rows and the bar in turn.
void CEditRecordSheet::AddRecordPage(CRecordPage& page) {
  AddPage(page);
  page.CategoryFollowed = [this](const QString& from, const QString& to) {
    m_categoryChanges.push_back({from, to});
  };
  page.LeaveAsked = [this](RowMove move) {
    return m_draftBar->TakeFocus(move == RowMove::Next ? COfferBar::End::First
                                                       : COfferBar::End::Last);
  };
}

// Null where the active page has no rows.
CRecordPage* CEditRecordSheet::RowsPage() const { return qobject_cast<CRecordPage*>(ActivePage()); }

// False on a page without rows.
bool CEditRecordSheet::EnterRows(COfferBar::End from) {
  CRecordPage* const page = RowsPage();
  if (page) page->EnterRows(from == COfferBar::End::Last ? RowMove::Next : RowMove::Previous);
  return page != nullptr;
}

// The panel came up for the fields of the sheet. What is closed with the program was not cancelled.
CEditRecordSheet::~CEditRecordSheet() {
  if (!m_isDecided) KeepAll();
  if (g_services.Timers) g_services.Timers->KillAll(*this);
  if (g_services.InputPanel && !m_panelWasUp) g_services.InputPanel->Lower();
}

void CEditRecordSheet::OnInitDialog() {
  const Oid opened = m_record.Oid;
  m_record = LoadSheet(opened, g_sheet);
  CSheet::OnInitDialog();
  m_offered = LoadDraft(opened);
  OfferDraft();
  g_services.Timers->Set(*this, kKeepTimer, kKeepMilliseconds);
}

bool CEditRecordSheet::TakeRows() {
  const SheetOutcome outcome = SaveSheet(m_record, g_settings);
  if (outcome == SheetOutcome::NotKept) {
    Tell(QStringLiteral("Cannot save. The storage is full or cannot be written."));
    return false;
  }
  m_isDecided = true;
  g_services.Timers->Kill(*this, kKeepTimer);
  m_memoPage->ForgetUnsaved();
  m_memoPage->Discard();
  if (outcome == SheetOutcome::KeptOfDeleted)
    Tell(
        QStringLiteral("The contact was deleted meanwhile. "
                       "What was entered is offered to the next new contact."));
  return true;
}

// What the user cancels is meant to go; a draft that was taken back is offered again as it was.
void CEditRecordSheet::OnCancel() {
  m_isDecided = true;
  m_restored ? SaveDraft(*m_restored) : DiscardDraft(m_record.Draft);
  m_memoPage->ForgetUnsaved();
  g_contactInk = {};
  CSheet::OnCancel();
}

void CEditRecordSheet::OnTimer(int) { KeepEntered(); }

// With the ink of a page that was not left.
void CEditRecordSheet::KeepAll() {
  if (ActivePage() == m_memoPage) m_memoPage->BecomeInactive();
  KeepEntered();
  if (m_record.Draft != 0) m_memoPage->ForgetUnsaved();
}

void CEditRecordSheet::KeepEntered() {
  auto entered = EnteredSoFar(m_record, g_settings);
  if (!entered || entered == m_kept) return;
  m_record.Draft = SaveDraft(*entered);
  entered->Number = m_record.Draft;
  m_kept = entered;
}

ControlMap CEditRecordSheet::Controls() const {
  ControlMap controls = CSheet::Controls();
  controls.merge(m_draftBar->Controls());
  return controls;
}

CommandRoute CEditRecordSheet::Route() const {
  CommandRoute route = CSheet::Route();
  route.Add(m_commands);
  return route;
}

std::span<const resources::MenuEntry> CEditRecordSheet::TitleMenu() const {
  return resources::kRecordTitleMenu;
}

void CEditRecordSheet::keyPressEvent(QKeyEvent* event) {
  CRecordPage* const page = RowsPage();
  const bool endsEdit = event->key() == Qt::Key_Escape && page && page->IsEditing();
  if (!endsEdit) return CSheet::keyPressEvent(event);
  if (!event->isAutoRepeat()) page->EndEdits();
}

void CEditRecordSheet::resizeEvent(QResizeEvent* event) {
  CSheet::resizeEvent(event);
  OfferDraft();
}

void CEditRecordSheet::OfferDraft() {
  if (!m_offered) return HideDraftBar();
  m_draftBar->Offer(QStringLiteral("Not saved: ") + TitleOf(*m_offered), PageArea());
}

// The focus goes first: what is hidden would hand it on as the Tab key does.
void CEditRecordSheet::HideDraftBar() {
  if (m_draftBar->HasFocus()) {
    ActivePage()->setFocus(Qt::ActiveWindowFocusReason);
    focusNextPrevChild(true);
  }
  m_draftBar->Withdraw();
}

// What was entered until now becomes a draft of its own.
void CEditRecordSheet::RestoreDraft() {
  ActivePage()->BecomeInactive();
  KeepEntered();
  const Draft draft = *std::exchange(m_offered, std::nullopt);
  m_record = SheetOfDraft(draft, g_sheet);
  m_restored = m_kept = draft;
  if (m_record.Oid != 0) SetCaption(QStringLiteral("Edit"));
  for (CSheetPage* page : Pages()) page->LoadRows();
  OfferDraft();
}

void CEditRecordSheet::DiscardOffered() {
  DiscardDraft(m_offered->Number);
  m_offered.reset();
  OfferDraft();
}

void CEditRecordSheet::ShowImportedDetails() {
  ContactItem item;
  if (!g_store.Provider || !g_store.Provider->Contacts()->Read(m_record.Oid, item)) return;
  CImportedDetailsDlg(Screen(), CarriedDetails(item)).DoModal();
}

}  // namespace quill
