// A fixture that opens the record sheet over a real store in memory and lets a test act in it.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "editor/RecordRowLayout.h"
#include "editor/ui/EditRecordSheet.h"
#include "editor/ui/PartEditor.h"
#include "editor/ui/RecordRowList.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FaultyStore.h"
#include "support/FixedClock.h"
#include "support/FreshState.h"

namespace quill::test {

class SheetFixture : public ScreenFixture {
 protected:
  SheetFixture() {
    g_services.Clock = &m_clock;
    EXPECT_EQ(OpenSession(m_store), StartupCode::Opened);
  }
  ~SheetFixture() override {
    CloseSession();
    g_store = {};
    g_settings = {};
    g_sheet = {};
    g_contactInk = {};
    g_services.Clock = nullptr;
  }

  Oid Add(const ContactRecord& record, const QByteArray& ink = {}) {
    return m_store.Contacts()->Save(0, record, ink);
  }
  // Opens the sheet of a contact, 0 for a new one, acts in it and ends it with Cancel when the test
  // has not ended it.
  void InSheet(Oid oid, const std::function<void()>& act) {
    CEditRecordSheet sheet(*m_screen, oid == 0 ? QStringLiteral("New") : QStringLiteral("Edit"));
    sheet.SetContact(oid);
    m_sheet = &sheet;
    {
      Steps steps(*m_screen, {[&] {
        act();
        if (m_screen->Topmost() == &sheet && !m_isEnded) sheet.OnCancel();
      }});
      sheet.DoModal();
    }
    m_sheet = nullptr;
    m_isEnded = false;
  }
  void PressOK() {
    m_isEnded = true;
    m_sheet->OnOK();
  }

  CRecordRowList& Rows() const { return *m_sheet->ActivePage()->findChild<CRecordRowList*>(); }
  QString Value(RowSet set, int row) const {
    return RowsOf(m_sheet->Record(), set)[static_cast<std::size_t>(row)].Value;
  }
  // Null when no part editor is open.
  CPartEditor* Parts() const {
    for (CPartEditor* editor : m_sheet->findChildren<CPartEditor*>())
      if (editor->isVisible()) return editor;
    return nullptr;
  }
  QLineEdit& RowEdit() const {
    return *qobject_cast<QLineEdit*>(m_sheet->Control(RecordSheetIds::kRowEdit));
  }
  // In the value's column, or at this x of the list.
  void TapRow(int row, int x = 120) {
    const int y = (row - Rows().Top()) * kRecordRowHeight + kRecordRowHeight / 2;
    m_input.Tap(Rows().mapTo(m_screen, QPoint(x, y)));
  }
  void TapPart(QPoint at) { m_input.Tap(Parts()->mapTo(m_screen, at)); }
  ContactItem Stored(Oid oid) {
    ContactItem item;
    EXPECT_TRUE(m_store.Contacts()->Read(oid, item));
    return item;
  }

  DeviceHome m_home;
  FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30))};
  PimStore m_pimStore{QStringLiteral(":memory:")};
  FaultyStore m_store{m_pimStore};
  CEditRecordSheet* m_sheet = nullptr;  // while it is open
  bool m_isEnded = false;
};

}  // namespace quill::test
