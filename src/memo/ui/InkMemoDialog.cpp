#include "memo/ui/InkMemoDialog.h"

#include <QResizeEvent>

#include "ink/InkFormat.h"
#include "ink/ui/InkEditing.h"
#include "ink/ui/InkX.h"
#include "memo/MemoDeletion.h"
#include "memo/MemoFiles.h"
#include "memo/MemoNames.h"
#include "platform/DeviceFiles.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "settings/ui/NameEntryDlg.h"

namespace quill {

namespace {

// Below the control when it is made. Once the window is resized the control takes all of it:
// intended.
constexpr int kRoomBelow = 25;

InkKeepingPlace PlaceOf(const QString& path, InkMemoKind kind) {
  if (kind == InkMemoKind::Existing) return {.Name = InkRecoveryName(path)};
  return {
      .Name = kNewInkRecoveryName.toString(), .IsShared = true, .Owner = MemoOwner(g_memo, path)};
}

// What was only looked at is written as it was.
bool WouldLoseInk(const QByteArray& opened, const QByteArray& written) {
  const InkReading reading = ReadInk(opened).Reading;
  return opened != written && reading != InkReading::Whole && reading != InkReading::Empty;
}

bool MayReplace(const QString& path) {
  if (!g_services.Files->Exists(path)) return true;
  return ConfirmDeletion(
      QStringLiteral("%1 is there already. Replace it?").arg(path.section(u'\\', -1)));
}

}  // namespace

CInkMemoDialog::CInkMemoDialog(CScreen& screen, const QString& path, InkMemoKind kind,
                               const InkKeepingPlace& place)
    : CModalWindow(screen), m_path(path), m_kind(kind), m_place(place) {
  SetCaption(QStringLiteral("Memo"));
}

CInkMemoDialog::CInkMemoDialog(CScreen& screen, const QString& path, InkMemoKind kind)
    : CInkMemoDialog(screen, path, kind, PlaceOf(path, kind)) {}

CInkMemoDialog::CInkMemoDialog(CScreen& screen, const InkKeepingPlace& place)
    : CInkMemoDialog(screen, {}, InkMemoKind::Existing, place) {}

// What is closed with the program was not given up.
CInkMemoDialog::~CInkMemoDialog() {
  if (m_isDecided && !m_path.isEmpty()) m_keeping->Discard();
}

void CInkMemoDialog::OnInitDialog() {
  m_ink = new InkX(this);
  m_ink->setGeometry(rect().adjusted(0, 0, 0, -kRoomBelow));
  m_editing = std::make_unique<InkEditing>(*m_ink, [this] { DeleteNote(); });
  ShowInkAsPage(*m_ink);
  m_opened = g_memo.Buffer;
  PutInkIn(*m_ink, m_opened);
  m_keeping = std::make_unique<InkKeeping>(*m_ink, m_place, *this);
}

void CInkMemoDialog::FocusFirstControl() { m_ink->setFocus(Qt::ActiveWindowFocusReason); }

ControlMap CInkMemoDialog::Controls() const {
  ControlMap controls = CModalWindow::Controls();
  if (m_keeping) controls.merge(m_keeping->Controls());
  return controls;
}

MenuBarModel CInkMemoDialog::MenuBar() const { return InkMenuBar(Screen(), Route()); }

CommandRoute CInkMemoDialog::Route() const {
  CommandRoute route;
  if (m_editing) route.Add(*m_editing);
  return route;
}

void CInkMemoDialog::OnOK() {
  g_memo.Buffer = TakeInkOut(*m_ink);
  m_kind == InkMemoKind::New ? SaveNew() : SaveExisting();
}

void CInkMemoDialog::OnCancel() { Decide(kResultCancel); }

void CInkMemoDialog::Decide(int result) {
  m_isDecided = true;
  EndDialog(result);
}

// Ink that is given no name is not given up either.
void CInkMemoDialog::SaveNew() {
  if (g_memo.Buffer.isEmpty()) return Decide(kResultCancel);
  const auto path = AskForName(Screen(), NameEntryMode::Save, m_path);
  path ? Save(*path) : EndDialog(kResultCancel);
}

void CInkMemoDialog::SaveExisting() {
  if (m_path.isEmpty()) return Decide(kResultOK);
  const MemoFate fate = FateOfMemo(m_path, m_opened);
  if (fate == MemoFate::Removed)
    return SaveBeside(u"The memo was deleted meanwhile. Please give this one a name."_qs, m_path);
  if (fate == MemoFate::Changed)
    return SaveBeside(u"The memo was changed meanwhile. Please give this one a new name."_qs,
                      FreeMemoCopyPath(m_path));
  if (WouldLoseInk(m_opened, g_memo.Buffer))
    return SaveBeside(
        u"Not all of the memo can be read, so it stays. Please give this one a new name."_qs,
        FreeMemoCopyPath(m_path));
  Save(m_path);
}

// Without a name the editor stays open: only the user's own Cancel gives up what is on the page.
void CInkMemoDialog::SaveBeside(const QString& why, const QString& proposed) {
  g_services.Prompt->Show({.Text = why});
  const auto path = AskForName(Screen(), NameEntryMode::Save, proposed);
  if (path && MayReplace(*path)) Save(*path);
}

void CInkMemoDialog::Save(const QString& path) {
  if (WriteMemo(g_memo, path, g_memo.Buffer)) return Decide(kResultOK);
  const bool isNamed = path != m_path || m_kind == InkMemoKind::New;
  g_services.Prompt->Show(
      {.Text = isNamed ? QStringLiteral("Please check the file name is valid.")
                       : QStringLiteral("Cannot save. The storage is full or cannot be written.")});
}

void CInkMemoDialog::DeleteNote() {
  if (!ConfirmMemoDeletion()) return;
  g_memo.Buffer.clear();
  m_keeping->DiscardDeleted();
  const bool isFile = m_kind == InkMemoKind::Existing && !m_path.isEmpty();
  // What cannot be removed stays, and is listed again.
  if (isFile) g_services.Files->Remove(m_path);
  Decide(isFile ? kResultCancel : kResultOK);
}

// The event of the first showing tells of no change: the control has its place already.
void CInkMemoDialog::resizeEvent(QResizeEvent* event) {
  if (!m_ink || !event->oldSize().isValid()) return;
  m_ink->setGeometry(rect());
  if (m_keeping) m_keeping->PlaceBar();
}

}  // namespace quill
