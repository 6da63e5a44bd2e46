// A dialog built from a resource: its controls are made, placed and registered by id. Buttons with
// the ids of OK (either of the two) and Cancel do what the title bar's do.
#pragma once

#include "platform/ui/ModalWindow.h"
#include "resources/Dialogs.h"

namespace quill {

class CDialog : public CModalWindow {
  Q_OBJECT
 public:
  CDialog(CScreen& screen, const resources::DialogResource& resource);

  WindowKind Kind() const override { return WindowKind::Dialog; }
  WindowSize Size() const override { return m_size; }

 protected:
  QWidget* AddDialogControl(const resources::DialogControl& control);
  void paintEvent(QPaintEvent* event) override;

 private:
  void FollowButton(int id, QWidget* control);

  WindowSize m_size;
};

}  // namespace quill
