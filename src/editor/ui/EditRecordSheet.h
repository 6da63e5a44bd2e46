// The record sheet: one contact, created or edited on three pages. It edits rows; OK turns them
// into the contact again and writes it, or keeps a draft. What there is nothing to save of is not
// written, and nothing is said of it. The user is told where the contact was deleted meanwhile, and
// where neither can be written: then the sheet stays open. What is entered outlives a crash as a
// draft, and a draft is offered where it belongs: when its contact is opened again, else to the
// next new contact.
#pragma once

#include "editor/Draft.h"
#include "editor/SheetRecord.h"
#include "platform/ui/OfferBar.h"
#include "platform/ui/Sheet.h"

namespace quill {

class CMemoPage;
class CRecordPage;

// A category that was renamed, or removed: then To is empty.
struct CategoryChange {
  QString From;
  QString To;

  bool operator==(const CategoryChange&) const = default;
};

class CEditRecordSheet : public CSheet {
  Q_OBJECT
 public:
  // caption: "New" or "Edit". Without SetContact it is a new contact, which takes the seed text
  // that waits in g_sheet.
  CEditRecordSheet(CScreen& screen, const QString& caption);
  ~CEditRecordSheet() override;

  void SetContact(Oid oid) { m_record.Oid = oid; }
  const SheetRecord& Record() const { return m_record; }
  // In their order. They stay, also when the sheet is cancelled.
  const std::vector<CategoryChange>& CategoryChanges() const { return m_categoryChanges; }

  ControlMap Controls() const override;
  CommandRoute Route() const override;
  std::span<const resources::MenuEntry> TitleMenu() const override;
  void OnCancel() override;
  void OnTimer(int id) override;

 protected:
  void OnInitDialog() override;
  bool TakeRows() override;
  // Escape ends the edit of a row first, and only then the sheet.
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddRecordPage(CRecordPage& page);
  CRecordPage* RowsPage() const;
  bool EnterRows(COfferBar::End from);
  void OfferDraft();
  void HideDraftBar();
  void RestoreDraft();
  void DiscardOffered();
  void KeepEntered();
  void KeepAll();
  void ShowImportedDetails();

  SheetRecord m_record;
  COfferBar* m_draftBar;
  CMemoPage* m_memoPage;
  std::vector<CategoryChange> m_categoryChanges;
  std::optional<Draft> m_offered;
  std::optional<Draft> m_kept;      // what was entered, as it was kept last
  std::optional<Draft> m_restored;  // the draft that was taken back, as it was
  CommandTarget m_commands;
  bool m_panelWasUp;
  bool m_isDecided = false;  // by the user: saved or cancelled
};

}  // namespace quill
