// The sheet's third page: the contact's ink notes, on a control of its own that is made when the
// page is first shown. While another page is shown the ink is in g_contactInk.
#pragma once

#include <memory>

#include "platform/ui/SheetPage.h"

namespace quill {

class InkEditing;
class InkKeeping;
class InkX;
struct SheetRecord;

class CMemoPage : public CSheetPage {
  Q_OBJECT
 public:
  // The record, which the sheet owns, says whose ink it is.
  CMemoPage(CSheet& sheet, const SheetRecord& record);
  ~CMemoPage() override;

  void LoadRows() override;
  void BecomeActive() override;
  // Brings g_contactInk up to date.
  void BecomeInactive() override;
  ControlMap Controls() const override;
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;

  // What the page holds is safe elsewhere, or is not wanted any more.
  void ForgetUnsaved();
  // Once the sheet was saved: neither ink nor control is left.
  void Discard();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeInk();
  void ShowNote();
  void DeleteNote();

  const SheetRecord& m_record;
  InkX* m_ink = nullptr;                  // a child
  std::unique_ptr<InkEditing> m_editing;  // of m_ink, as long as that
  std::unique_ptr<InkKeeping> m_keeping;  // the same
};

}  // namespace quill
