// The contact list view: search box, index strip, list and scroll bar in the main frame's client
// area. It opens the store session and fills the page; everything shown stands in g_list.
#pragma once

#include <QWidget>

#include <memory>
#include <optional>

#include "list/KeyMoves.h"
#include "list/ListState.h"
#include "list/Scrolling.h"
#include "platform/CommandTarget.h"
#include "platform/Timers.h"
#include "platform/ui/WaitCursor.h"
#include "platform/ui/Window.h"
#include "store/StoreProvider.h"

class QLineEdit;
class QScrollBar;

namespace quill {

class CCategoryLabel;
class CContactSummaryCard;
class CContactListCtrl;
class CIndexStrip;
class RequestOpening;

class CContactsView : public QWidget, public TimerTarget {
  Q_OBJECT
 public:
  explicit CContactsView(QWidget* frame);
  ~CContactsView() override;

  // The first time in this process: opens the session and builds the first page. After a session
  // that failed the view stays empty.
  void OnInitialUpdate(StoreProvider& provider);
  // A new shell over a list that is there already: lays out what g_list holds.
  void ShowState();

  CommandRoute Route() const;
  const ControlMap& Controls() const { return m_controls; }

  // The store's change notice. first is 1 for a change of this program itself; any other rebuilds
  // the list half a second after the last notice, and not while a menu is open or the pen is down.
  void OnStoreNotice(int first, int second);
  // What other programs ask: see RequestOpening.
  bool OnCopyData(int kind, const QString& text);
  void OpenMemoFile(const QString& path);
  void OnTimer(int id) override;

  // Fills the page again with the filter in force.
  void Rebuild();
  // The same after what was selected from this row of the page on has been deleted: what stands
  // there now is selected, or the last row.
  void RebuildInPlace(int row);
  // The same after a filter took the place of the search: the search box is empty then.
  void ShowFiltered();
  void Search();
  void ShowMode(ViewMode mode);
  void ChooseIndex(int button);
  // Places list and scroll bar as the settings say and goes to the first row, nothing selected.
  void Relayout();
  void FocusList();
  void FocusSearch();
  // Where the caret stands in the search box, in UTF-16 units; nothing while the box does not have
  // the keyboard.
  std::optional<int> SearchCaret() const;
  // Gives it the keyboard.
  void SetSearchCaret(int caret);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeControls();
  void ListenToList();
  void PlaceControls();
  void RunScrollAction(int action);
  void Scroll(ScrollRequest request, int thumb);
  void MoveRow(KeyMove move);
  void OpenRow(int row);
  void ShowCard(int row, QPoint at);
  void DismissCard();
  void ShowRowPopup(int row, QPoint at);
  void ShowPage();
  void ShowWaiting(bool waiting);
  bool IsInUse();
  void BringUpToDate();

  QLineEdit* m_searchEdit;
  CCategoryLabel* m_category;
  CIndexStrip* m_indexStrip;
  CContactListCtrl* m_list;
  QScrollBar* m_scrollBar;
  ControlMap m_controls;
  std::optional<WaitCursor> m_waiting;
  std::unique_ptr<CContactSummaryCard> m_card;  // once it was asked for
  std::unique_ptr<CommandTarget> m_contactCommands;
  std::unique_ptr<CommandTarget> m_linkedItemCommands;
  std::unique_ptr<CommandTarget> m_memoCommands;
  std::unique_ptr<CommandTarget> m_modeCommands;
  std::unique_ptr<CommandTarget> m_categoryCommands;
  std::unique_ptr<CommandTarget> m_settingsCommands;
  std::unique_ptr<CommandTarget> m_keyCommands;
  std::unique_ptr<RequestOpening> m_requests;
};

}  // namespace quill
