// Long work behind a small window with its progress and a Cancel button. The work runs inside
// DoModal, and nothing else of the program can be reached until it ends.
#pragma once

#include <QElapsedTimer>

#include <chrono>
#include <functional>
#include <optional>

#include "platform/ui/Dialog.h"
#include "platform/ui/WaitCursor.h"

namespace quill {

class CProgressDlg : public CDialog {
  Q_OBJECT
 public:
  using Work = std::function<void(CProgressDlg& progress)>;
  static constexpr std::chrono::milliseconds kPatience{400};

  // The window is shown only when the work takes longer than the patience; until then there is a
  // wait cursor. While the program closes the work is not begun.
  CProgressDlg(CScreen& screen, const QString& caption, Work work,
               std::chrono::milliseconds patience = kPatience);

  // For the work, now and then: how far it is with what. False when it shall stop.
  bool Continue(const QString& subject, const QString& progress);

  bool HasOK() const override { return false; }
  void OnOK() override {}
  void OnCancel() override { m_isCancelled = true; }

 protected:
  void OnInitDialog() override;

 private:
  void ShowNow();

  const Work m_work;
  const std::chrono::milliseconds m_patience;
  QElapsedTimer m_sinceBegin;
  std::optional<WaitCursor> m_waitCursor;
  bool m_isCancelled = false;
};

}  // namespace quill
