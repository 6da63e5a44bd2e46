// A fixture whose every test begins and ends with the process-wide state as at the program's start.
// Its programs link quill_list and quill_editor.
#pragma once

#include <gtest/gtest.h>

#include "editor/SheetState.h"
#include "editor/SummaryState.h"
#include "list/CategoryMenu.h"
#include "list/ContactPopup.h"
#include "list/ListState.h"
#include "list/PendingRequest.h"
#include "memo/MemoState.h"
#include "platform/KeyPanelState.h"
#include "platform/Services.h"
#include "settings/DeleteScope.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"

namespace quill::test {

// All but the services, which a fixture may have set already.
inline void ResetState() {
  CloseSession();
  g_store = {};
  g_contactInk = {};
  g_list = {};
  g_categoryMenu = {};
  g_pendingRequest = {};
  g_memo = {};
  g_settings = {};
  g_sheet = {};
  g_card = {};
  g_deleteScope = {};
  g_keyPanel = {};
  g_linkedItems = {};
}

inline void ResetProcessState() {
  ResetState();
  g_services = {};
}

class FreshState : public testing::Test {
 protected:
  FreshState() { ResetProcessState(); }
  ~FreshState() override { ResetProcessState(); }
};

}  // namespace quill::test
