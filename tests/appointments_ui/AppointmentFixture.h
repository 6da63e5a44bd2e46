// A fixture for the windows of appointments: a store in memory, a device with two sounds, a clock
// that stands on Tuesday, 2004-02-03, 9:47.
#pragma once

#include <QComboBox>

#include "memo/MemoState.h"
#include "platform/Services.h"
#include "platform/ui/Window.h"
#include "platform_ui/ScreenFixture.h"
#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FaultyStore.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"
#include "support/SoundLog.h"

namespace quill::test {

class AppointmentFixture : public ScreenFixture {
 protected:
  AppointmentFixture() {
    g_memo = {};
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
    g_services.Sounds = &m_sounds;
    EXPECT_EQ(OpenSession(m_store), StartupCode::Opened);
    EXPECT_EQ(m_home.Files.CreateFolder(QStringLiteral("\\Windows")), 0);
    for (const char16_t* name : {u"Bell.wav", u"alarm.wav", u"song.mp3"})
      EXPECT_TRUE(m_home.Files.WriteWhole(QStringLiteral("\\Windows\\") + QString::fromUtf16(name),
                                          "sound"));
  }
  ~AppointmentFixture() override {
    CloseSession();
    g_memo = {};
    g_services.Prompt = nullptr;
    g_services.Clock = nullptr;
    g_services.Sounds = nullptr;
  }

  // Of Tuesday, from 9 to 10:30.
  static AppointmentItem Tea() {
    return {.Subject = QStringLiteral("(Kim) tea"),
            .Start = MakeCalendarDate({2004, 2, 3}, {9, 0}),
            .End = MakeCalendarDate({2004, 2, 3}, {10, 30}),
            .Duration = 90};
  }
  Oid Add(const AppointmentItem& item) { return m_store.Calendar()->Save(item); }
  AppointmentItem Stored(Oid oid) { return OpenAppointment(oid).value_or(AppointmentItem()); }
  // The only one; the test fails when there are others or none.
  AppointmentItem Only() {
    const AppointmentCollection all = AllAppointments();
    EXPECT_EQ(Count(all), 1);
    return Stored(AppointmentAt(all, 1));
  }

  // Of the topmost window, with this id.
  template <class Widget>
  Widget& Get(int id) {
    return dynamic_cast<Widget&>(*m_screen->Topmost()->Control(id));
  }
  // As the user chooses an entry of a list.
  void Choose(int id, int index) {
    auto& list = Get<QComboBox>(id);
    list.setCurrentIndex(index);
    Q_EMIT list.activated(index);
  }
  Step OK() {
    return [this] { m_screen->Topmost()->OnOK(); };
  }
  Step Cancel() {
    return [this] { m_screen->Topmost()->OnCancel(); };
  }

  DeviceHome m_home;
  ScriptedPrompt m_prompt;
  FixedClock m_clock{QDateTime(QDate(2004, 2, 3), QTime(9, 47, 12))};
  SoundLog m_sounds;
  PimStore m_pimStore{QStringLiteral(":memory:")};
  FaultyStore m_store{m_pimStore};
};

}  // namespace quill::test
