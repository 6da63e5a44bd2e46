// A page of rows of the record sheet: the row list with its scroll bar, and over it the editors of
// the parts behind some rows.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "editor/SheetRecord.h"
#include "editor/SheetScrolling.h"
#include "editor/ui/EditField.h"
#include "platform/Timers.h"
#include "platform/ui/SheetPage.h"

class QScrollBar;

namespace quill {

class CPartEditor;
class CRecordRowList;

class CRecordPage : public CSheetPage, public TimerTarget {
  Q_OBJECT
 public:
  ~CRecordPage() override;

  void LoadRows() override;
  void BecomeInactive() override;
  ControlMap Controls() const override;
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;
  bool ShowContextMenu() override;
  // Begins the edit of the first row. Nothing starts the timer: intended.
  void OnTimer(int id) override;

  // A row, or the parts behind one.
  bool IsEditing() const;
  // Ends every edit, of a row and of parts.
  void EndEdits();
  // Edits the first row, or the last one going backwards.
  void EnterRows(RowMove move);

  // A category was renamed, or removed (to is empty), and the row that has it follows already.
  std::function<void(const QString& from, const QString& to)> CategoryFollowed =
      [](const QString&, const QString&) {};
  // Tab and arrow keys lead out of the rows. False: round to the other end.
  std::function<bool(RowMove move)> LeaveAsked = [](RowMove) { return false; };

 protected:
  // The record outlives the page, which shows and changes these rows of it.
  CRecordPage(CSheet& sheet, const QString& title, SheetRecord& record, RowSet rows);

  void AddScrollBar(int id);
  void AddPartEditor(CPartEditor& editor);
  // The commands of the Edit menu; the page may ask them to be enabled by the active field.
  enum class EditEnabling { Always, ByField };
  void AddEditCommands(EditEnabling enabling);

  void resizeEvent(QResizeEvent* event) override;

 private:
  void ListenToRows();
  EditField ActiveField() const;
  CPartEditor* OpenParts() const;
  void CloseParts();
  void SumUp();
  void ShowParts(RowSet parts);
  void MoveEdit(RowMove move);
  void EditRow(int row);
  void Scroll(int action);
  void ScrollTo(int top);
  void ScrollToShow(int row);
  int RowsShown() const;

  SheetRecord& m_record;
  const RowSet m_set;
  CRecordRowList* m_rows;
  QScrollBar* m_scrollBar = nullptr;
  std::vector<CPartEditor*> m_partEditors;
  std::unique_ptr<CommandTarget> m_commands;
};

class CBasicPage : public CRecordPage {
  Q_OBJECT
 public:
  CBasicPage(CSheet& sheet, SheetRecord& record);
};

class CDetailPage : public CRecordPage {
  Q_OBJECT
 public:
  CDetailPage(CSheet& sheet, SheetRecord& record);
};

}  // namespace quill
