#include "driver/Targets.h"

#include <QApplication>

#include "app/ui/MainFrame.h"
#include "driver/Arguments.h"
#include "editor/ui/PartEditor.h"
#include "editor/ui/RecordRowList.h"
#include "ink/ui/InkX.h"
#include "list/ui/ContactListCtrl.h"
#include "list/ui/ContactsView.h"
#include "platform/ChromeLayout.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/MenuPopup.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"

namespace quill::driver {

namespace {

template <typename Found>
Found* FindBelowScreen() {
  const CScreen* screen = FindScreen();
  return screen ? screen->findChild<Found*>() : nullptr;
}

std::optional<Target> Whole(QWidget* window) {
  if (window == nullptr) return std::nullopt;
  return Target{window, window->rect()};
}

std::optional<Target> FindControl(int id) {
  const CWindow* topmost = FindTopmost();
  return Whole(topmost ? topmost->Control(id) : nullptr);
}

// The uppermost window above the frame, the card included.
std::optional<Target> FindTop() {
  const CScreen* screen = FindScreen();
  if (screen == nullptr || screen->Windows().empty()) return std::nullopt;
  CWindow* top = screen->Windows().back();
  if (top->Kind() == WindowKind::Frame) return std::nullopt;
  return ClientOf(*top);
}

std::optional<Target> FindPage() {
  const CSheet* sheet = FindSheet();
  return Whole(sheet ? sheet->ActivePage() : nullptr);
}

}  // namespace

CScreen* FindScreen() {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (auto* screen = window->findChild<CScreen*>()) return screen;
  return nullptr;
}

CMainFrame* FindMainFrame() { return FindBelowScreen<CMainFrame>(); }

QWidget* FindView() { return FindBelowScreen<CContactsView>(); }

CContactListCtrl* FindList() { return FindBelowScreen<CContactListCtrl>(); }

CWindow* FindTopmost() {
  const CScreen* screen = FindScreen();
  return screen ? screen->Topmost() : nullptr;
}

CSheet* FindSheet() {
  const CScreen* screen = FindScreen();
  if (screen == nullptr) return nullptr;
  CSheet* sheet = nullptr;
  for (CWindow* window : screen->Windows())
    if (auto* found = qobject_cast<CSheet*>(window)) sheet = found;
  return sheet;
}

CRecordRowList* FindRecordRows() {
  const CSheet* sheet = FindSheet();
  const CSheetPage* page = sheet ? sheet->ActivePage() : nullptr;
  return page ? page->findChild<CRecordRowList*>() : nullptr;
}

CPartEditor* FindPartEditor() {
  const CSheet* sheet = FindSheet();
  if (sheet == nullptr) return nullptr;
  for (CPartEditor* editor : sheet->findChildren<CPartEditor*>())
    if (editor->isVisible()) return editor;
  return nullptr;
}

InkX* FindInk() {
  const CWindow* topmost = FindTopmost();
  if (topmost == nullptr) return nullptr;
  for (InkX* ink : topmost->findChildren<InkX*>())
    if (ink->isVisible()) return ink;
  return nullptr;
}

CMenuPopup* FindPopup() {
  const CScreen* screen = FindScreen();
  return screen ? screen->Popup() : nullptr;
}

Target ClientOf(CWindow& window) {
  const bool captioned = window.Size() == WindowSize::Small && qobject_cast<CDialog*>(&window);
  return {&window, window.rect().adjusted(0, captioned ? kSmallCaptionHeight : 0, 0, 0)};
}

std::optional<Target> FindTarget(const QJsonValue& on) {
  if (const std::optional<int> id = WholeNumber(on)) return FindControl(*id);
  if (on.isUndefined()) return Whole(FindScreen());
  const QString name = on.toString();
  if (name == u"screen") return Whole(FindScreen());
  if (name == u"view") return Whole(FindView());
  if (name == u"list") return Whole(FindList());
  if (name == u"top") return FindTop();
  if (name == u"page") return FindPage();
  if (name == u"rows") return Whole(FindRecordRows());
  if (name == u"parts") return Whole(FindPartEditor());
  if (name == u"ink") return Whole(FindInk());
  return std::nullopt;
}

Answer RefuseTarget(const QJsonValue& on) {
  const bool named = on.isUndefined() || on.isString() || WholeNumber(on).has_value();
  return Refusal(named ? kUnknown : kMalformed);
}

QRect OnScreen(const Target& target) {
  return {OnScreen(target, QPoint(0, 0)), target.Client.size()};
}

QPoint OnScreen(const Target& target, QPoint inClient) {
  return target.Window->mapTo(FindScreen(), target.Client.topLeft() + inClient);
}

void CloseOuterWindow() {
  if (const CScreen* screen = FindScreen())
    screen->window()->close();
  else
    QCoreApplication::quit();
}

}  // namespace quill::driver
