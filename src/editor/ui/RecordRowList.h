// A page's rows: paints labels and values, and edits a value in its place. What is typed while no
// row is edited goes to the first one. Rows are counted from 0;
// points are logical pixels of the list.
#pragma once

#include <functional>

#include "editor/SheetRecord.h"
#include "editor/SheetScrolling.h"
#include "editor/ui/EditField.h"
#include "editor/ui/RowEditors.h"
#include "platform/Timers.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CRecordRowList : public CPaintedWindow, public TimerTarget {
  Q_OBJECT
 public:
  // The record outlives the list, which shows and changes the rows of this page of it.
  CRecordRowList(SheetRecord& record, RowSet page, QWidget* parent);
  ~CRecordRowList() override;

  // Lays the rows out again after they were changed elsewhere.
  void ShowRows();
  int Top() const { return m_top; }
  // Makes this row the first one shown; the editor goes along.
  void SetTop(int top);

  // Begins the edit of a row by its kind; an edit that was going on ends. No row is -1.
  void StartEdit(int row);
  // The same by a key, which opens no window: the row that is edited in one waits for Space.
  void ReachRow(int row);
  void EndEdit();
  int EditedRow() const { return m_edited; }
  const RecordRow* EditedRecordRow() const;
  // The editor of texts; none while none is shown.
  EditField Field() const;
  ControlMap Controls() const { return m_editors.Controls(); }

  // Offers what can be done with the row's value.
  void ShowRowMenu(int row) override;
  void ActivateRow(int row) override;
  void OnTimer(int id) override;

  // A tap, before anything else comes of it.
  std::function<void()> Tapped;
  // An edit that an editor of parts carries out.
  std::function<void(RowSet parts)> PartsAsked;
  // Something is entered into the edited row, which may be scrolled out of sight.
  std::function<void()> Entering;
  // A category was renamed, or removed (to is empty), where a row's were to be chosen.
  std::function<void(const QString& from, const QString& to)> CategoryFollowed;
  // Tab and arrow keys: another row is to be edited.
  std::function<void(RowMove move)> MoveAsked;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void PenCancel() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  // A hold on the field over a value is a hold on its row; what is composed there is entered.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  RecordRow& RowAt(int row);
  void SetValue(const QString& value);
  void ChooseCategories(int row);
  void EditText(int row);
  void EditDate(int row);
  void EditSound(int row);
  void Tap(QPoint at);
  void BeginTyping(QKeyEvent& key);
  void StartHold();
  void StopHold();

  SheetRecord& m_record;
  const RowSet m_page;
  RowEditors m_editors;
  int m_top = 0;
  int m_edited = -1;
  std::optional<QPoint> m_pressedAt;  // while a tap may still come of it
};

}  // namespace quill
