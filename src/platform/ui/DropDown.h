// A drop-down list whose list opens as a popup inside the frame.
#pragma once

#include <QComboBox>

namespace quill {

class CScreen;

class CDropDown : public QComboBox {
  Q_OBJECT
 public:
  CDropDown(CScreen& screen, QWidget* parent);

  // Opens the list, waits, and activates what was chosen.
  void showPopup() override;

 private:
  CScreen& m_screen;
};

}  // namespace quill
