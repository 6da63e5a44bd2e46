// A property sheet: a full-screen window with pages, of which one is shown. Its controls, menu bar
// and commands follow that page. It ends where the input panel begins.
#pragma once

#include <vector>

#include "platform/ui/ModalWindow.h"
#include "platform/ui/SheetPage.h"

namespace quill {

class CSheetTabs;

// Without tabs only the sheet itself switches its pages.
enum class SheetTabs { AtBottom, None };

class CSheet : public CModalWindow {
  Q_OBJECT
 public:
  CSheet(CScreen& screen, const QString& caption, SheetTabs tabs = SheetTabs::AtBottom);

  WindowKind Kind() const override { return WindowKind::Sheet; }

  // Pages are numbered from 0 in the order in which they were added. The first one is shown first.
  void AddPage(CSheetPage& page);
  const std::vector<CSheetPage*>& Pages() const { return m_pages; }
  // Leaves the active page and shows this one. Nothing happens when it is shown already.
  void ShowPage(int index);
  // Null and -1 before the sheet is shown.
  CSheetPage* ActivePage() const;
  int ActiveIndex() const { return m_active; }

  // Its own, then the active page's. Where both have an id, the sheet's is meant.
  ControlMap Controls() const override;
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;
  bool ShowContextMenu() override;

  // Leaves the active page, lets all pages store their rows, and ends with OK when they are taken.
  void OnOK() override;
  void OnVisibleAreaChanged(QRect area) override { setGeometry(area); }

 protected:
  // Lets all pages load their rows.
  void OnInitDialog() override;
  void FocusFirstControl() override;
  // Where the pages stand: all that the tabs leave.
  virtual QRect PageArea() const;
  // Called on OK with all rows stored. False keeps the sheet open.
  virtual bool TakeRows() { return true; }
  // Called when another page is shown than before, however that came about.
  virtual void OnPageShown() {}
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LeavePage();
  void PutPageInPlace(CSheetPage& page, CSheetPage* before);
  bool SwitchByKey(const QKeyEvent& event);

  CSheetTabs* m_tabs = nullptr;      // null without tabs
  std::vector<CSheetPage*> m_pages;  // children
  int m_active = -1;
};

}  // namespace quill
