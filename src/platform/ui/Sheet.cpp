#include "platform/ui/Sheet.h"

#include <QApplication>
#include <QKeyEvent>

#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "platform/ui/SheetTabs.h"

namespace quill {

CSheet::CSheet(CScreen& screen, const QString& caption, SheetTabs tabs) : CModalWindow(screen) {
  SetCaption(caption);
  if (tabs == SheetTabs::None) return;
  m_tabs = new CSheetTabs(this);
  m_tabs->Chosen = [this](int page) { ShowPage(page); };
  QCoreApplication::instance()->installEventFilter(this);
}

void CSheet::AddPage(CSheetPage& page) {
  m_pages.push_back(&page);
  if (m_tabs) m_tabs->AddTab(page.Title());
}

CSheetPage* CSheet::ActivePage() const {
  return m_active < 0 ? nullptr : m_pages[static_cast<std::size_t>(m_active)];
}

void CSheet::OnInitDialog() {
  if (CSheetPage* const page = ActivePage()) page->hide();  // it runs again
  m_active = -1;
  for (CSheetPage* page : m_pages) page->LoadRows();
}

void CSheet::FocusFirstControl() {
  m_pages.empty() ? CModalWindow::FocusFirstControl() : ShowPage(0);
}

void CSheet::ShowPage(int index) {
  if (index == m_active) return;
  LeavePage();
  CSheetPage* const before = ActivePage();
  m_active = index;
  CSheetPage& page = *ActivePage();
  PutPageInPlace(page, before);
  page.BecomeActive();
  if (window()->focusWidget() == &page) focusNextPrevChild(true);
  OnPageShown();
  Screen().UpdateChrome();
}

// The page has the focus itself for a moment: else what is hidden would hand it to any control.
void CSheet::PutPageInPlace(CSheetPage& page, CSheetPage* before) {
  page.setGeometry(PageArea());
  page.show();
  page.setFocus(Qt::ActiveWindowFocusReason);
  if (before) before->hide();
  if (m_tabs) m_tabs->SetActive(m_active);
}

void CSheet::LeavePage() {
  CommitInput();
  if (CSheetPage* const page = ActivePage()) page->BecomeInactive();
}

void CSheet::OnOK() {
  LeavePage();
  for (CSheetPage* page : m_pages) page->StoreRows();
  if (TakeRows()) CModalWindow::OnOK();
}

ControlMap CSheet::Controls() const {
  ControlMap controls = CModalWindow::Controls();
  if (const CSheetPage* const page = ActivePage()) controls.merge(page->Controls());
  return controls;
}

MenuBarModel CSheet::MenuBar() const {
  const CSheetPage* const page = ActivePage();
  return page ? page->MenuBar() : CModalWindow::MenuBar();
}

CommandRoute CSheet::Route() const {
  const CSheetPage* const page = ActivePage();
  return page ? page->Route() : CommandRoute();
}

bool CSheet::ShowContextMenu() {
  CSheetPage* const page = ActivePage();
  return page && page->ShowContextMenu();
}

QRect CSheet::PageArea() const { return rect().adjusted(0, 0, 0, m_tabs ? -kSheetTabsHeight : 0); }

void CSheet::resizeEvent(QResizeEvent*) {
  if (m_tabs) m_tabs->setGeometry(0, PageArea().height(), width(), kSheetTabsHeight);
  if (CSheetPage* const page = ActivePage()) page->setGeometry(PageArea());
}

// Before the control with the focus sees it: lists and dates would take some of these keys.
bool CSheet::eventFilter(QObject* watched, QEvent* event) {
  const auto* const widget = qobject_cast<QWidget*>(watched);
  const bool isKey = event->type() == QEvent::KeyPress;
  if (!isKey || !widget || (widget != this && !isAncestorOf(widget))) return false;
  return SwitchByKey(*static_cast<QKeyEvent*>(event));
}

bool CSheet::SwitchByKey(const QKeyEvent& event) {
  const auto page = SheetPageAfterKey(m_tabs->Model(), event.key(), event.modifiers());
  if (page) ShowPage(*page);
  return page.has_value();
}

}  // namespace quill
