// The editor of one ink memo. It takes the memo's bytes from g_memo.Buffer and leaves there, on OK,
// what it wrote.
#pragma once

#include <memory>

#include "ink/ui/InkKeeping.h"
#include "platform/ui/ModalWindow.h"

namespace quill {

class InkEditing;
class InkX;

enum class InkMemoKind { New, Existing };

class CInkMemoDialog : public CModalWindow {
  Q_OBJECT
 public:
  // The memo's full device path; of a new memo the one that is proposed.
  CInkMemoDialog(CScreen& screen, const QString& path, InkMemoKind kind);
  // Ink that is no file's is not written: whoever opened the editor takes g_memo.Buffer, and
  // decides what becomes of the recovery file.
  CInkMemoDialog(CScreen& screen, const InkKeepingPlace& place);
  ~CInkMemoDialog() override;

  WindowKind Kind() const override { return WindowKind::Dialog; }
  ControlMap Controls() const override;
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;
  // Writes the file and ends with OK; of a new memo the user names the file first, and of one that
  // others changed or removed while it was open or that could not be read as a whole, so that what
  // lies in the file stays. A new memo with nothing on its page, and one that is given no name, end
  // with Cancel and make no file; what was given no name is offered to the next new memo, and what
  // was open when the program ended is offered again too. Where the file cannot be written the user
  // is told, and the editor stays open.
  void OnOK() override;
  void OnCancel() override;
  void OnVisibleAreaChanged(QRect area) override { setGeometry(area); }
  // The recovery file, from OnInitDialog on.
  const QString& KeepingFile() const { return m_keeping->File(); }

 protected:
  void OnInitDialog() override;
  void FocusFirstControl() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SaveNew();
  void SaveExisting();
  void SaveBeside(const QString& why, const QString& proposed);
  void Save(const QString& path);
  void DeleteNote();
  void Decide(int result);
  CInkMemoDialog(CScreen& screen, const QString& path, InkMemoKind kind,
                 const InkKeepingPlace& place);

  const QString m_path;  // empty: the ink is no file's
  const InkMemoKind m_kind;
  const InkKeepingPlace m_place;
  QByteArray m_opened;                    // what the memo held then
  InkX* m_ink = nullptr;                  // a child, made by OnInitDialog
  std::unique_ptr<InkEditing> m_editing;  // of m_ink
  std::unique_ptr<InkKeeping> m_keeping;  // of m_ink
  bool m_isDecided = false;               // by the user: saved, cancelled or deleted
};

}  // namespace quill
