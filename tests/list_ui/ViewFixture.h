// A fixture with the contacts view in the pen screen's client area, over a real store in memory.
// Its test programs link quill_list_ui and quill_store_pim.
#pragma once

#include <QLineEdit>
#include <QScrollBar>

#include <memory>

#include "editor/SheetState.h"
#include "list/CategoryMenu.h"
#include "list/ListState.h"
#include "list/PendingRequest.h"
#include "list/ui/CategoryLabel.h"
#include "list/ui/ContactListCtrl.h"
#include "list/ui/ContactsView.h"
#include "list/ui/IndexStrip.h"
#include "memo/MemoState.h"
#include "platform/Services.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill::test {

// A frame that holds the view and nothing else.
class ViewFrame : public CWindow {
 public:
  explicit ViewFrame(CScreen& screen) : CWindow(screen), View(this) {
    View.setGeometry(rect());
    screen.Push(*this);
    show();
  }
  ~ViewFrame() override { Screen().Remove(*this); }
  WindowKind Kind() const override { return WindowKind::Frame; }
  ControlMap Controls() const override { return View.Controls(); }
  CommandRoute Route() const override { return View.Route(); }

  CContactsView View;
};

class ViewFixture : public ScreenFixture {
 protected:
  ViewFixture() : m_frame((ResetState(), std::make_unique<ViewFrame>(*m_screen))) {}
  ~ViewFixture() override {
    m_frame.reset();
    ResetState();
  }

  CContactsView& View() { return m_frame->View; }

  void Add(const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    ASSERT_NE(m_store.Contacts()->Save(0, record, {}), 0);
  }
  // Contacts named 001, 002, ...
  void AddNumbered(int count) {
    const auto transaction = m_store.Begin();
    for (int i = 1; i <= count; ++i) Add(QStringLiteral("%1").arg(i, 3, 10, QLatin1Char('0')));
    ASSERT_TRUE(transaction->Commit());
  }
  // Opens the session before the view does, so that contacts can be added, and shows the view.
  void Open(const QStringList& names = {}, int numbered = 0) {
    ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
    for (const QString& name : names) Add(name);
    if (numbered > 0) AddNumbered(numbered);
    View().Rebuild();
  }

  template <class Widget>
  Widget& Control(int id) const {
    return *qobject_cast<Widget*>(m_frame->Control(id));
  }
  QLineEdit& SearchEdit() const { return Control<QLineEdit>(ContactsViewIds::kSearchEdit); }
  QScrollBar& ScrollBar() const { return Control<QScrollBar>(ContactsViewIds::kScrollBar); }
  CContactListCtrl& List() const {
    return Control<CContactListCtrl>(ContactsViewIds::kListControl);
  }
  CCategoryLabel& CategoryLabel() { return *View().findChild<CCategoryLabel*>(); }
  CIndexStrip& IndexStrip() { return *View().findChild<CIndexStrip*>(); }
  QPoint OnScreen(const QWidget& control) const {
    return control.mapTo(m_screen, control.rect().center());
  }

  // The middle of a row of the list, or this x of it, in pixels of the screen.
  QPoint OnRow(int row, int x = 50) const {
    return List().mapTo(m_screen, QPoint(x, 16 * row + 8));
  }

  static QStringList ShownNames() {
    QStringList names;
    for (int row = 0; row < g_list.RowsShown; ++row) names.append(g_list.Rows[row].Name);
    return names;
  }

  DeviceHome m_deviceHome;
  PimStore m_pimStore{QStringLiteral(":memory:")};
  FaultyStore m_store{m_pimStore};
  std::unique_ptr<ViewFrame> m_frame;
};

}  // namespace quill::test
