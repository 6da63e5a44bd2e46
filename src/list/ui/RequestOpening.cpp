#include "list/ui/RequestOpening.h"

#include <QMetaObject>

#include <utility>

#include "editor/SheetState.h"
#include "list/ui/ContactsView.h"
#include "list/ui/MemoCommands.h"
#include "list/ui/RecordOpening.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"

namespace quill {

RequestOpening::~RequestOpening() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

bool RequestOpening::OnCopyData(int kind, const QString& text) {
  const RequestAnswer answer = TakeRequest(g_pendingRequest, kind, text);
  if (answer != RequestAnswer::Ignored) Await();
  // Said as soon as may be, but whoever asks must not wait for the message box.
  if (answer == RequestAnswer::NotFound)
    QMetaObject::invokeMethod(
        &m_view, [this] { TellNobodyFound(); }, Qt::QueuedConnection);
  return answer == RequestAnswer::Kept;
}

void RequestOpening::OpenMemoFile(const QString& path) {
  TakeMemo(g_pendingRequest, path);
  Await();
}

void RequestOpening::Await() {
  if (g_pendingRequest.Kind != PendingKind::None || g_pendingRequest.NobodyFound)
    g_services.Timers->Set(*this, kRequestTimer, kRequestMilliseconds);
}

// The timer goes on until what is open has closed and the pen is up.
void RequestOpening::OnTimer(int) {
  if (!IsIdle()) return;
  g_services.Timers->Kill(*this, kRequestTimer);
  DropIfGone(g_pendingRequest);
  TellNobodyFound();
  Show(std::exchange(g_pendingRequest, {}));
}

bool RequestOpening::IsIdle() const {
  const CScreen* const screen = ScreenAround(&m_view);
  return !screen || screen->IsUndisturbed();
}

void RequestOpening::TellNobodyFound() {
  if (!g_pendingRequest.NobodyFound || !IsIdle()) return;
  g_pendingRequest.NobodyFound = false;
  g_services.Prompt->Show({.Text = QStringLiteral("Related name not found.")});
}

void RequestOpening::Show(const PendingRequest& request) {
  if (request.Kind == PendingKind::New) {
    g_sheet.SeedText = request.Text;
    MakeNewContact(m_view);
  } else if (request.Kind == PendingKind::Memos) {
    OpenMemoFiles(m_view, request.Memos);
  } else if (request.Kind != PendingKind::None) {
    EditContact(m_view, request.Contact);
  }
}

}  // namespace quill
