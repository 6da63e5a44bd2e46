#include "list/ui/MemoFollower.h"

#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "platform/Services.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kTimer = 1;
constexpr int kDelay = 500;  // milliseconds after the last change

// What a dialog asks about stays where it is listed.
bool IsInUse(CContactsView& view) {
  const CScreen* const screen = ScreenAround(&view);
  return screen && !screen->IsUndisturbed();
}

}  // namespace

MemoFollower::~MemoFollower() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void MemoFollower::OnMemosChanged() {
  if (g_list.Mode != ViewMode::ByMemo) return;
  g_list.RebuildDue = true;  // also when a change of scale overtakes the timer
  g_services.Timers->Set(*this, kTimer, kDelay);
}

void MemoFollower::OnTimer(int) {
  if (IsInUse(m_view)) return;
  g_services.Timers->Kill(*this, kTimer);
  if (g_list.Mode == ViewMode::ByMemo) m_view.Rebuild();
}

}  // namespace quill
