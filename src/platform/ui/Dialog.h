// A dialog built from a resource: its controls are made, placed and registered by id. Buttons with
// the ids of OK and Cancel do what the title bar's do.
#pragma once

#include "platform/ui/ModalWindow.h"
#include "resources/Dialogs.h"

namespace quill {

class CDialog : public CModalWindow {
  Q_OBJECT
 public:
  // The resource must outlive the dialog only while it is made.
  CDialog(CScreen& screen, const resources::DialogResource& resource);

  WindowKind Kind() const override { return WindowKind::Dialog; }
  WindowSize Size() const override { return m_size; }

 protected:
  // The place on the screen of a small dialog, its caption included.
  void PlaceOnScreen(QRect place);
  QWidget* AddDialogControl(const resources::DialogControl& control);
  void paintEvent(QPaintEvent* event) override;

 private:
  void FollowButton(int id, QWidget* control);

  WindowSize m_size;
};

}  // namespace quill
