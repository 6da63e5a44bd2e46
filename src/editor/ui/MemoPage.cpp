#include "editor/ui/MemoPage.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

#include "editor/SheetRecord.h"
#include "ink/ui/InkEditing.h"
#include "ink/ui/InkKeeping.h"
#include "ink/ui/InkX.h"
#include "memo/MemoDeletion.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

// Below the control when it is made. Once the page is resized the control takes all of it:
// intended.
constexpr int kRoomBelow = 20;

}  // namespace

CMemoPage::CMemoPage(CSheet& sheet, const SheetRecord& record)
    : CSheetPage(sheet, QStringLiteral("Memo")), m_record(record) {}

CMemoPage::~CMemoPage() = default;

void CMemoPage::LoadRows() {
  if (!m_ink) return;
  ForgetUnsaved();  // the sheet has kept it
  ShowNote();
}

void CMemoPage::BecomeActive() {
  if (!m_ink) MakeInk();
  m_ink->setFocus(Qt::ActiveWindowFocusReason);
}

void CMemoPage::MakeInk() {
  m_ink = new InkX(this);
  m_ink->setGeometry(rect().adjusted(0, 0, 0, -kRoomBelow));
  m_editing = std::make_unique<InkEditing>(*m_ink, [this] { DeleteNote(); });
  ShowNote();
  m_ink->show();
}

void CMemoPage::ShowNote() {
  PutInkIn(*m_ink, g_contactInk.Bytes);
  ShowInkAsPage(*m_ink);
  const InkKeepingPlace place{.Name = ContactInkRecoveryName(m_record.Oid),
                              .IsShared = m_record.Oid == 0};
  m_keeping = std::make_unique<InkKeeping>(*m_ink, place, *this);
}

// A note that was deleted can be taken back until here.
void CMemoPage::BecomeInactive() {
  g_contactInk.Bytes = TakeInkOut(*m_ink);
  if (g_contactInk.Bytes.isEmpty()) PutInkIn(*m_ink, {});
}

void CMemoPage::DeleteNote() {
  if (!ConfirmMemoDeletion()) return;
  g_contactInk = {};
  EraseInk(*m_ink);
  m_keeping->DiscardDeleted();
}

void CMemoPage::ForgetUnsaved() {
  if (m_keeping) m_keeping->Discard();
}

void CMemoPage::Discard() {
  g_contactInk = {};
  m_keeping.reset();
  m_editing.reset();
  delete std::exchange(m_ink, nullptr);
}

ControlMap CMemoPage::Controls() const {
  ControlMap controls = CSheetPage::Controls();
  if (m_keeping) controls.merge(m_keeping->Controls());
  return controls;
}

MenuBarModel CMemoPage::MenuBar() const { return InkMenuBar(Sheet().Screen(), Route()); }

CommandRoute CMemoPage::Route() const {
  CommandRoute route;
  if (m_editing) route.Add(*m_editing);
  return route;
}

void CMemoPage::resizeEvent(QResizeEvent*) {
  if (!m_ink) return;
  m_ink->setGeometry(rect());
  m_keeping->PlaceBar();
}

void CMemoPage::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), Qt::white);
}

}  // namespace quill
