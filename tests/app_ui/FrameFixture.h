// A fixture with the main frame on the pen screen, over a real store in memory.
#pragma once

#include <memory>
#include <vector>

#include "app/ui/MainFrame.h"
#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "memo/MemoState.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FaultyStore.h"

namespace quill::test {

class FrameFixture : public ScreenFixture {
 protected:
  FrameFixture()
      : m_application({{ID_APP_ABOUT, ID_APP_ABOUT, [this](int) { ++m_abouts; }, nullptr}}) {
    ResetList();
    m_frame = std::make_unique<CMainFrame>(*m_screen, m_application);
    m_frame->show();
  }
  ~FrameFixture() override {
    m_frame.reset();
    ResetList();
  }

  void Open() { m_frame->View().OnInitialUpdate(m_store); }
  void Add(const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    ASSERT_NE(m_store.Contacts()->Save(0, record, {}), 0);
  }

  DeviceHome m_deviceHome;
  PimStore m_pimStore{QStringLiteral(":memory:")};
  FaultyStore m_store{m_pimStore};
  int m_abouts = 0;
  CommandTarget m_application;
  std::unique_ptr<CMainFrame> m_frame;

 private:
  static void ResetList() {
    CloseSession();
    g_store = {};
    g_list = {};
    g_memo = {};
    g_settings = {};
  }
};

}  // namespace quill::test
