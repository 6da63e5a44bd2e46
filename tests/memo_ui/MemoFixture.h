// A fixture that opens the memo editor over a memo folder of its own and lets a test act in it.
#pragma once

#include <QLineEdit>

#include "ink/InkFormat.h"
#include "ink/ui/InkX.h"
#include "memo/MemoFolder.h"
#include "memo/ui/InkMemoDialog.h"
#include "platform/Services.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "support/DeviceHome.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"

namespace quill::test {

inline QByteArray TypedNote(const QString& text) {
  return WriteInk({.Text = {.Text = text, .Runs = {{static_cast<int>(text.size())}}}});
}
inline const QByteArray kNote = TypedNote(u"a note"_qs);
inline const QByteArray kOther = TypedNote(u"another one"_qs);

class MemoFixture : public ScreenFixture {
 protected:
  MemoFixture() {
    g_memo = {};
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
    FixMemoFolder(g_memo);
  }
  ~MemoFixture() override {
    g_memo = {};
    g_services.Prompt = nullptr;
    g_services.Clock = nullptr;
  }

  static QString Path(const char16_t* name) { return MemoPath(g_memo, QString::fromUtf16(name)); }
  void Put(const QString& path, const QByteArray& content) {
    ASSERT_TRUE(m_home.Files.WriteWhole(path, content));
  }
  // What the file holds; nothing when there is none.
  std::optional<QByteArray> Content(const QString& path) const {
    return m_home.Files.Exists(path) ? m_home.Files.ReadWhole(path) : std::nullopt;
  }
  // The editor on top; else the test ends in a crash.
  CInkMemoDialog& Editor() const { return dynamic_cast<CInkMemoDialog&>(*m_screen->Topmost()); }
  InkX& Ink() const { return *Editor().findChild<InkX*>(); }
  // In the dialog that asks for the file's name.
  void EnterName(const QString& name) {
    auto* const edit = qobject_cast<QLineEdit*>(m_screen->Topmost()->Control(NameEntryIds::kEdit));
    ASSERT_NE(edit, nullptr);
    m_proposed = edit->text();
    edit->setText(name);
    m_screen->Topmost()->OnOK();
  }

  DeviceHome m_home;
  ScriptedPrompt m_prompt;
  FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  QString m_proposed;
};

}  // namespace quill::test
