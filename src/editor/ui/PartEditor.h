// An editor of the parts behind one row, over the page: a list of labelled parts with an edit field
// over the part that is edited. What is typed is in the part's row at once; before a part is edited
// it goes to the one that most begin with.
#pragma once

#include <functional>

#include "editor/SheetRecord.h"
#include "editor/SheetScrolling.h"
#include "editor/ui/EditField.h"
#include "platform/ui/PaintedWindow.h"
#include "platform/ui/Window.h"

class QLineEdit;
class QPlainTextEdit;

namespace quill {

class CEdit;
class CMultiEdit;

class CPartEditor : public CPaintedWindow {
  Q_OBJECT
 public:
  RowSet Parts() const { return m_parts; }
  // Shows it with the focus, no part edited yet.
  void Open();
  // Hides it. What has the focus in it hands it to the page's row list.
  void Close();
  void EditPart(int part);
  void ActivateRow(int row) override { EditPart(row); }

  // The field that is active while this editor is shown; none before a part is edited.
  virtual EditField Field() const;
  virtual ControlMap Controls() const = 0;

  // Tab and arrow keys lead out of the parts.
  std::function<void(RowMove move)> MoveAsked;

 protected:
  // The record outlives the editor. editId: of the field for a single line.
  CPartEditor(SheetRecord& record, RowSet parts, QWidget* page);

  CEdit& LineEdit() const { return *m_edit; }
  int EditedPart() const { return m_edited; }
  void SetValue(const QString& value);
  // Puts the part's field in place and gives it the focus; HideFields takes all of them away.
  virtual void ShowField(int part, const QRect& area, const QString& value);
  virtual void HideFields();

  void PenPress(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  RecordRow& RowAt(int part);
  void ShowParts();
  void EndPart();
  void MovePart(RowMove move);
  void BeginTyping(QKeyEvent& key);

  SheetRecord& m_record;
  const RowSet m_parts;
  CEdit* m_edit;
  int m_edited = -1;
};

// The five parts of a name.
class CNamePartEditor : public CPartEditor {
  Q_OBJECT
 public:
  CNamePartEditor(SheetRecord& record, QWidget* page);
  ControlMap Controls() const override;
};

// The five parts of an address, the street with several lines.
class CAddressPartEditor : public CPartEditor {
  Q_OBJECT
 public:
  CAddressPartEditor(SheetRecord& record, RowSet address, QWidget* page);
  EditField Field() const override;
  ControlMap Controls() const override;

 protected:
  void ShowField(int part, const QRect& area, const QString& value) override;
  void HideFields() override;

 private:
  CMultiEdit* m_street;
};

}  // namespace quill
