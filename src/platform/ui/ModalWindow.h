// A window that is run: it shades the screen, waits in a loop of its own and returns a result.
#pragma once

#include <QEventLoop>

#include <optional>

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
  // Leaves DoModal with this result, also from within OnInitDialog.
  void EndDialog(int result);

  bool HasOK() const override { return true; }
  void OnOK() override { EndDialog(kResultOK); }
  void OnCancel() override { EndDialog(kResultCancel); }
  // A small window moves up out of the input panel's way.
  void OnVisibleAreaChanged(QRect area) override;

 protected:
  // Called in DoModal, when the window is on the stack, in the area that the input panel leaves,
  // and not yet shown.
  virtual void OnInitDialog() {}
  // Called when it is shown and has not been ended yet.
  virtual void FocusFirstControl();
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void FitVisibleArea();
  void WaitForEnd();
  void GiveFocusBack(QWidget* before);

  QEventLoop* m_loop = nullptr;  // while DoModal waits
  std::optional<int> m_result;   // once EndDialog was called
};

}  // namespace quill
