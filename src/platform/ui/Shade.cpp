#include "platform/ui/Shade.h"

#include "platform/ui/Screen.h"

namespace quill {

CShade::CShade(CScreen& screen) : CPenWidget(&screen) {
  setGeometry(screen.rect());
  show();
  raise();
}

}  // namespace quill
