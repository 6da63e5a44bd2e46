// A fixture for tests of one dialog: its controls by id, as a person finds and taps them.
#pragma once

#include "platform/ChromeLayout.h"
#include "platform/ui/Dialog.h"
#include "platform_ui/ScreenFixture.h"

namespace quill::test {

class DialogFixture : public ScreenFixture {
 protected:
  // The dialog has it, and it is of this kind; else the test ends in a crash.
  template <class Widget>
  static Widget& Get(const CDialog& dialog, int id) {
    return dynamic_cast<Widget&>(*dialog.Control(id));
  }
  // Where a control stands, relative to the client area below the caption of a small dialog.
  static QRect ClientPlace(const CDialog& dialog, int id) {
    const int caption = dialog.Size() == WindowSize::Small ? kSmallCaptionHeight : 0;
    return Get<QWidget>(dialog, id).geometry().translated(0, -caption);
  }
  void TapControl(const CDialog& dialog, int id) {
    const auto& control = Get<QWidget>(dialog, id);
    m_input.Tap(control.mapTo(m_screen, control.rect().center()));
  }
};

}  // namespace quill::test
