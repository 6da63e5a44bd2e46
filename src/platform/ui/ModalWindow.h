// A window that is run: it shades the screen, waits in a loop of its own and returns a result.
#pragma once

#include <QEventLoop>

#include "platform/ui/Window.h"
#include "resources/Ids.h"

namespace quill {

class CModalWindow : public CWindow {
  Q_OBJECT
 public:
  explicit CModalWindow(CScreen& screen) : CWindow(screen) {}

  // Shows the window on top and waits for EndDialog; then focus is back where it was. While the
  // program closes it returns kResultCancel at once and shows nothing.
  int DoModal();
  // Leaves DoModal with this result. Nothing happens when it is not running.
  void EndDialog(int result);

  bool HasOK() const override { return true; }
  void OnOK() override { EndDialog(kResultOK); }
  void OnCancel() override { EndDialog(kResultCancel); }

 protected:
  // Called in DoModal, when the window is on the stack and not yet shown.
  virtual void OnInitDialog() {}
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void FocusFirstControl();

  QEventLoop* m_loop = nullptr;  // while DoModal runs
  int m_result = kResultCancel;
};

}  // namespace quill
