#include "platform/ui/ProgressDlg.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>

#include <utility>

#include "platform/ui/Look.h"
#include "platform/ui/Screen.h"
#include "resources/FileDialogs.h"

namespace quill {

namespace {

void ShowText(const CDialog& dialog, int id, const QString& text) {
  auto& label = *qobject_cast<QLabel*>(dialog.Control(id));
  label.setText(QFontMetrics(NormalFont()).elidedText(text, Qt::ElideMiddle, label.width()));
}

}  // namespace

CProgressDlg::CProgressDlg(CScreen& screen, const QString& caption, Work work,
                           std::chrono::milliseconds patience)
    : CDialog(screen, resources::kProgressDialog), m_work(std::move(work)), m_patience(patience) {
  SetCaption(caption);
}

// The work ends before DoModal would wait.
void CProgressDlg::OnInitDialog() {
  m_sinceBegin.start();
  m_waitCursor.emplace();
  m_work(*this);
  m_waitCursor.reset();
  EndDialog(m_isCancelled ? kResultCancel : kResultOK);
}

void CProgressDlg::ShowNow() {
  m_waitCursor.reset();
  show();
  raise();
  Control(kResultCancel)->setFocus(Qt::ActiveWindowFocusReason);
}

bool CProgressDlg::Continue(const QString& subject, const QString& progress) {
  if (m_sinceBegin.elapsed() < m_patience.count()) return true;
  if (!isVisible()) ShowNow();
  ShowText(*this, ProgressIds::kSubject, subject);
  ShowText(*this, ProgressIds::kProgress, progress);
  QCoreApplication::processEvents();
  return !m_isCancelled && !Screen().IsClosing();
}

}  // namespace quill
