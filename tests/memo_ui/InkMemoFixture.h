// A fixture that runs the memo editor on a memo of its own, with what a test does in it.
#pragma once

#include <vector>

#include "memo_ui/MemoFixture.h"

namespace quill::test {

inline const QString kInkPlace = QStringLiteral("ink-sample");

class InkMemoFixture : public MemoFixture {
 protected:
  // Runs the editor and the steps in it.
  int Run(InkMemoKind kind, const QString& path, std::vector<Step> steps) {
    CInkMemoDialog dialog(*m_screen, path, kind);
    const Steps running(*m_screen, std::move(steps));
    return dialog.DoModal();
  }
  int RunOnInk(std::vector<Step> steps) {
    CInkMemoDialog dialog(*m_screen, {.Name = kInkPlace});
    const Steps running(*m_screen, std::move(steps));
    return dialog.DoModal();
  }
  int Edit(std::vector<Step> steps) {
    g_memo.Buffer = kNote;
    Put(Path(u"a.pwi"), kNote);
    return Run(InkMemoKind::Existing, Path(u"a.pwi"), std::move(steps));
  }
  int WriteNew(std::vector<Step> steps) {
    return Run(InkMemoKind::New, Path(u"new.pwi"), std::move(steps));
  }
  Step Write(const QByteArray& bytes) {
    return [this, bytes] { Ink().SetData(bytes); };
  }
  Step OK() {
    return [this] { m_screen->Topmost()->OnOK(); };
  }
  Step Cancel() {
    return [this] { m_screen->Topmost()->OnCancel(); };
  }
  Step Name(const QString& name) {
    return [this, name] { EnterName(name); };
  }
  Step Delete() {
    return [this] { Editor().RunCommand(ID_INK_DELETE_NOTE); };
  }
};

}  // namespace quill::test
