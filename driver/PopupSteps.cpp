#include "driver/PopupSteps.h"

#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/MenuPopup.h"

namespace quill::driver {

void AddDismissal(Steps& steps) {
  if (FindPopup() == nullptr) return;
  steps.Add([] {
    if (CMenuPopup* open = FindPopup()) open->Dismiss();
  });
}

}  // namespace quill::driver
