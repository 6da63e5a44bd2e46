#include "appointments/ui/AppointmentInk.h"

#include <utility>

#include "ink/InkFormat.h"
#include "ink/InkRecovery.h"
#include "memo/MemoState.h"
#include "memo/ui/InkMemoDialog.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"
#include "store/AppointmentStore.h"

namespace quill {

AppointmentInk::AppointmentInk(CScreen& screen, AppointmentItem& item)
    : m_screen(screen), m_item(item), m_stored(item.BodyInk) {}

// What the program's end finds in the editor stays in the file as it is.
void AppointmentInk::Edit(const QString& subject) {
  const QString owner = m_item.Id == 0 ? subject : QString();
  const auto ink = RunEditor(owner);
  if (m_screen.IsClosing()) return;
  if (ink) Put(*ink);
  Keep(owner);
}

// Nothing when it was cancelled.
std::optional<QByteArray> AppointmentInk::RunEditor(const QString& owner) {
  CInkMemoDialog editor(m_screen, {.Name = AppointmentInkRecoveryName(m_item.Id),
                                   .IsShared = m_item.Id == 0,
                                   .Owner = owner,
                                   .File = m_file});
  g_memo.Buffer = InHand();
  const int result = editor.DoModal();
  const QByteArray ink = std::exchange(g_memo.Buffer, {});
  if (m_screen.IsClosing()) return std::nullopt;
  m_file = editor.KeepingFile();
  return result == kResultOK ? std::optional(ink) : std::nullopt;
}

void AppointmentInk::Put(const QByteArray& ink) {
  m_refused.reset();
  if (PutAppointmentInk(m_item, ink)) return;
  m_refused = ink;
  g_services.Prompt->Show({.Text = QStringLiteral("Cannot save. Memo exceeded memory limitation."),
                           .Icon = PromptIcon::Warning});
}

// What was written in a cancelled editor is in the file no more.
void AppointmentInk::Keep(const QString& owner) {
  const QByteArray ink = InHand();
  if (ink.isEmpty() || ink == m_stored) return Discard();
  WriteUnsavedInk(m_file, ReadInk(ink).Note, owner);
}

void AppointmentInk::Discard() {
  if (!m_file.isEmpty()) RemoveUnsavedInk(m_file);
}

}  // namespace quill
