// A fixture with a frame that has an editor, and the key panel to be tapped by its keys' names.
#pragma once

#include "platform/ui/Edit.h"
#include "platform/ui/KeyPanel.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill::test {

class KeysFixture : public ScreenFixture {
 protected:
  KeysFixture() : m_frame(*m_screen), m_edit({}, &m_frame) {
    m_edit.setGeometry(10, 10, 100, 18);
    m_edit.show();
    m_edit.setFocus();
  }

  CKeyPanel& Keys() const { return *m_screen->findChild<CKeyPanel*>(); }
  bool HasKey(const QString& name) const { return !RowNamed(Keys(), name).isNull(); }
  QPoint KeyAt(const QString& name) const { return RowNamed(Keys(), name).center(); }
  void TapKey(const QString& name) { m_input.Tap(KeyAt(name)); }
  // Taps the keys with these letters; a blank is the space key.
  void TapLetters(const QString& letters) {
    for (const QChar letter : letters) TapKey(letter == u' ' ? QStringLiteral("Space") : letter);
  }

  SampleFrame m_frame;
  CEdit m_edit;
};

}  // namespace quill::test
