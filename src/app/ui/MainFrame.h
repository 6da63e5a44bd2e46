// The main frame: menu bar and the one view. It hands the store's change messages and other
// programs' requests on to the view, and watches the store for what other programs write.
#pragma once

#include "platform/ui/Window.h"
#include "store/StoreProvider.h"

namespace quill {

class CContactsView;

class CMainFrame : public CWindow {
  Q_OBJECT
 public:
  // applicationCommands: asked after the view's. Not owned.
  CMainFrame(CScreen& screen, const CommandTarget& applicationCommands);
  ~CMainFrame() override;

  WindowKind Kind() const override { return WindowKind::Frame; }
  ControlMap Controls() const override;
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;
  void OnCancel() override;
  void OnTimer(int id) override;

  CContactsView& View() { return *m_view; }

  // Queues a message to the frame. The store's three change messages go on to the view with the
  // same parameters, 10024 with none; any other number does nothing.
  void PostStoreMessage(int number, int first, int second);
  // A request by another program, answered by the view.
  bool CopyData(int kind, const QString& text);

  // From now on commits of other programs become change messages with first parameter 0. Without a
  // session it watches nothing.
  void WatchStore();

 protected:
  bool event(QEvent* event) override;

 private:
  void HandleStoreMessage(int number, int first, int second);
  void LookForChanges();
  void KeepInputPanel();
  void RestoreInputPanel();

  CContactsView* m_view;
  const CommandTarget& m_applicationCommands;
  bool m_panelWasUp = false;  // when the desktop took the activation away
};

}  // namespace quill
