// The question in which character set a file is written that does not say it.
#pragma once

#include "platform/ui/Dialog.h"

namespace quill {

class CCharsetDlg : public CDialog {
  Q_OBJECT
 public:
  // line: one of the file that shows the difference (FindUndeclaredText). preset: a name out of
  // kCharsetChoices.
  CCharsetDlg(CScreen& screen, const QByteArray& line, const QByteArray& preset);

  QByteArray Charset() const;

 private:
  void ShowPreview();

  const QByteArray m_line;
};

}  // namespace quill
