// A drop-down list whose list opens as a popup inside the frame.
#pragma once

#include <QComboBox>

#include <functional>

namespace quill {

class CScreen;

class CDropDown : public QComboBox {
  Q_OBJECT
 public:
  CDropDown(CScreen& screen, QWidget* parent);

  // Opens the list, waits, and activates what was chosen.
  void showPopup() override;

  // Called when the list has closed, before what was chosen is activated.
  std::function<void()> Closed;

 private:
  CScreen& m_screen;
};

}  // namespace quill
