// A drop-down list into whose cell any text may be typed. Nothing is completed. It has the input
// panel up while it has the focus; its edit menu opens inside the frame, as its list does.
#pragma once

#include "platform/ui/DropDown.h"

namespace quill {

class CTypedDropDown : public CDropDown {
  Q_OBJECT
 public:
  CTypedDropDown(CScreen& screen, QWidget* parent);

  // Says nothing to Changed.
  void SetText(const QString& text);

  // Called when the user typed something or chose an entry, also the one that was shown.
  std::function<void()> Changed;

 private:
  void FollowText(const QString& text);
  void TellChanged();
};

}  // namespace quill
