#include "settings/ui/DeleteConfirmDlg.h"

#include <QLabel>
#include <QPalette>

#include "resources/SettingsDialogs.h"

namespace quill {

namespace {

constexpr QRgb kGround = qRgb(192, 192, 192);

}  // namespace

CDeleteConfirmDlg::CDeleteConfirmDlg(CScreen& screen)
    : CDialog(screen, resources::kDeleteConfirmDialog) {
  QPalette grey = palette();
  grey.setColor(QPalette::Window, kGround);
  grey.setColor(QPalette::Button, kGround);
  setPalette(grey);
}

void CDeleteConfirmDlg::OnInitDialog() {
  auto* const message = qobject_cast<QLabel*>(Control(DeleteConfirmIds::kMessage));
  message->setText(DeleteQuestion(g_deleteScope));
}

bool ConfirmContactDeletion(CScreen& screen, DeleteScope scope) {
  g_deleteScope = scope;
  return CDeleteConfirmDlg(screen).DoModal() == kResultOK;
}

}  // namespace quill
