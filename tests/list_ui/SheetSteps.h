// What a test does with the record sheet that something it does next opens.
#pragma once

#include <gtest/gtest.h>

#include "editor/ui/EditRecordSheet.h"
#include "editor/ui/RecordRowList.h"
#include "platform/ui/Screen.h"
#include "platform_ui/Steps.h"

namespace quill::test {

// The step must end the sheet. Fails when no sheet comes.
class SheetSteps {
 public:
  SheetSteps(CScreen& screen, std::function<void(CEditRecordSheet& sheet)> step)
      : m_steps(screen, {[&screen, step = std::move(step)] {
                  auto* const sheet = qobject_cast<CEditRecordSheet*>(screen.Topmost());
                  ASSERT_NE(sheet, nullptr);
                  step(*sheet);
                }}) {}

 private:
  Steps m_steps;
};

}  // namespace quill::test
