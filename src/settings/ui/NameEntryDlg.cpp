#include "settings/ui/NameEntryDlg.h"

#include <QLabel>
#include <QLineEdit>

#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "resources/SettingsDialogs.h"

namespace quill {

namespace {

QString TitleOf(NameEntryMode mode) {
  switch (mode) {
    case NameEntryMode::Copy:
      return QStringLiteral("Copy As");
    case NameEntryMode::Rename:
      return QStringLiteral("Rename As");
    case NameEntryMode::Save:
      break;
  }
  return QStringLiteral("Save As");
}

}  // namespace

CNameEntryDlg::CNameEntryDlg(CScreen& screen, NameEntryMode mode, const QString& preset)
    : CDialog(screen, resources::kNameEntryDialog) {
  const QString title = TitleOf(mode);
  SetCaption(title);
  qobject_cast<QLabel*>(Control(NameEntryIds::kLabel))->setText(title);
  Editor().setText(preset);
  Editor().setAccessibleName(title);
}

QLineEdit& CNameEntryDlg::Editor() const {
  return *qobject_cast<QLineEdit*>(Control(NameEntryIds::kEdit));
}

// The editor, the first control, gets the focus and with it its whole text selected.
void CNameEntryDlg::OnInitDialog() {
  if (g_services.InputPanel) g_services.InputPanel->Raise();
}

void CNameEntryDlg::OnOK() {
  m_text = EditorText(Editor());
  if (g_services.InputPanel) g_services.InputPanel->Lower();
  CDialog::OnOK();
}

std::optional<QString> AskForName(CScreen& screen, NameEntryMode mode, const QString& preset) {
  InputPanel* const panel = g_services.InputPanel;
  const bool wasUp = panel && panel->IsUp();
  CNameEntryDlg dialog(screen, mode, preset);
  if (dialog.DoModal() == kResultOK) return dialog.Text();
  if (panel && !wasUp) panel->Lower();
  return std::nullopt;
}

}  // namespace quill
