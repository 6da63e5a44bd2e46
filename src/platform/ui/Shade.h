// A transparent cover over the whole screen: what lies below it takes no pen while something modal
// is open. Shown and raised by its making, gone with its owner.
#pragma once

#include "platform/ui/PenWidget.h"

namespace quill {

class CScreen;

class CShade : public CPenWidget {
  Q_OBJECT
 public:
  explicit CShade(CScreen& screen);
};

}  // namespace quill
