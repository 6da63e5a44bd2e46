#include "list/Beaming.h"

#include "platform/Infrared.h"
#include "platform/Prompt.h"
#include "platform/Services.h"

namespace quill {

namespace {

void TellFailure() {
  g_services.Prompt->Show({.Text = QStringLiteral("Failed to open Infrared.")});
}

}  // namespace

bool CanBeam(const ListState& list) {
  return list.Mode != ViewMode::ByMemo && !list.SelectedKeys.empty();
}

void BeamSelectedContacts(const ListState& list) {
  if (list.Mode == ViewMode::ByMemo) return;
  const std::vector<int> selected = list.SelectedKeys;  // may change behind a message
  InfraredFolder* const folder = g_services.Infrared;
  const bool isOpen = folder && folder->Open();
  if (!isOpen) TellFailure();
  for (const int oid : selected)
    if (!isOpen || !folder->AddItem(oid)) TellFailure();
  if (isOpen) folder->Send();
}

void ReceiveContacts(const ListState& list) {
  if (list.Mode != ViewMode::ByMemo && g_services.Infrared) g_services.Infrared->Receive();
}

}  // namespace quill
