// The sheet's third page: the contact's ink notes. So far it only says whether there are any; they
// stay with the contact as they are.
#pragma once

#include "platform/ui/SheetPage.h"

namespace quill {

class CMemoPage : public CSheetPage {
  Q_OBJECT
 public:
  explicit CMemoPage(CSheet& sheet);

  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  CommandTarget m_commands;
  QString m_text;
};

}  // namespace quill
