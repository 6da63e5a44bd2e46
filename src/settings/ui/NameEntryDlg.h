// Asks for a name to copy, rename or save a file as. The text is not checked in any way. The input
// panel is up when the dialog opens; OK lowers it, Cancel leaves it: intended.
#pragma once

#include <QString>

#include <optional>

#include "platform/ui/Dialog.h"

class QLineEdit;

namespace quill {

enum class NameEntryMode { Copy = 1, Rename = 2, Save = 3 };

class CNameEntryDlg : public CDialog {
  Q_OBJECT
 public:
  // The preset stands in the editor, all of it selected.
  CNameEntryDlg(CScreen& screen, NameEntryMode mode, const QString& preset);

  // What was entered, once OK ended the dialog; empty before and after Cancel.
  const QString& Text() const { return m_text; }
  void OnOK() override;

 protected:
  void OnInitDialog() override;

 private:
  QLineEdit& Editor() const;

  QString m_text;
};

// Runs the dialog; nothing after Cancel. A panel that came up for it goes down with it then, too:
// there is nothing more to type.
std::optional<QString> AskForName(CScreen& screen, NameEntryMode mode, const QString& preset);

}  // namespace quill
