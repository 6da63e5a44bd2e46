#include "editor/ui/PartEditor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <utility>

#include "editor/PartEditorLayout.h"
#include "editor/RecordRowLayout.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "platform/ui/Edit.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/MultiEdit.h"
#include "platform/ui/RowPainter.h"
#include "resources/Ids.h"

namespace quill {

CPartEditor::CPartEditor(SheetRecord& record, RowSet parts, QWidget* page)
    : CPaintedWindow(page, QAccessible::List),
      m_record(record),
      m_parts(parts),
      m_edit(new CEdit({}, this)) {
  setVisible(false);
  setFocusPolicy(Qt::StrongFocus);
  setGeometry(PartEditorArea(parts));
  m_edit->setVisible(false);
  m_edit->setMaxLength(kLongestText);
  connect(m_edit, &QLineEdit::textChanged, this, &CPartEditor::SetValue);
}

RecordRow& CPartEditor::RowAt(int part) {
  return RowsOf(m_record, m_parts)[static_cast<std::size_t>(part)];
}

void CPartEditor::ShowParts() {
  SetRows(LayOutParts(RowsOf(m_record, m_parts), m_parts, m_edited, NormalTextWidth()));
}

void CPartEditor::Open() {
  EndPart();
  ShowParts();
  show();
  raise();
  setFocus(Qt::OtherFocusReason);
}

void CPartEditor::Close() {
  if (isHidden()) return;
  EndPart();
  hide();
}

void CPartEditor::EditPart(int part) {
  EndPart();
  m_edited = part;
  ShowParts();
  ShowField(part, PartEditArea(m_parts, part), RowAt(part).Value);
  if (g_services.InputPanel) g_services.InputPanel->Raise();
}

// The focus goes first: what is hidden would hand it on as the Tab key does.
void CPartEditor::EndPart() {
  CommitInput();  // while the part still takes it
  if (isAncestorOf(QApplication::focusWidget())) setFocus(Qt::OtherFocusReason);
  m_edited = -1;
  HideFields();
}

void CPartEditor::SetValue(const QString& value) {
  if (m_edited < 0) return;
  RowAt(m_edited).Value = value;
  ShowParts();
}

EditField CPartEditor::Field() const { return m_edited < 0 ? EditField() : FieldOf(*m_edit); }

void CPartEditor::ShowField(int, const QRect& area, const QString& value) {
  const QSignalBlocker untouched(m_edit);
  m_edit->setText(value);
  m_edit->setAccessibleName(RowAt(m_edited).Label);
  m_edit->setGeometry(area);
  m_edit->show();
  m_edit->setFocus(Qt::OtherFocusReason);
  m_edit->selectAll();
}

void CPartEditor::HideFields() { m_edit->hide(); }

void CPartEditor::PenPress(QPoint at) {
  const auto part = PartToEdit(m_parts, at);
  if (part) return EditPart(*part);
  EndPart();
  ShowParts();
}

void CPartEditor::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up)
    MovePart(RowMove::Previous);
  else if (event->key() == Qt::Key_Down)
    MovePart(RowMove::Next);
  else if (m_edited < 0 && BeginsText(*event))
    BeginTyping(*event);
  else
    CPaintedWindow::keyPressEvent(event);
}

void CPartEditor::BeginTyping(QKeyEvent& key) {
  EditPart(PartTypedFirst(m_parts));
  HandToField(key, *this);
}

// Asked by its fields, too.
bool CPartEditor::focusNextPrevChild(bool next) {
  MovePart(next ? RowMove::Next : RowMove::Previous);
  return true;
}

void CPartEditor::MovePart(RowMove move) {
  const auto part = RowAfterMove(m_edited, move, kPartRowCount);
  part ? EditPart(*part) : MoveAsked(move);
}

void CPartEditor::paintEvent(QPaintEvent* event) {
  CPaintedWindow::paintEvent(event);
  QPainter painter(this);
  DrawFrame(painter, rect(), kRecordLineColor);
}

CNamePartEditor::CNamePartEditor(SheetRecord& record, QWidget* page)
    : CPartEditor(record, RowSet::NameParts, page) {
  setAccessibleName(QStringLiteral("Name"));
}

ControlMap CNamePartEditor::Controls() const {
  return {{RecordSheetIds::kNamePartEdit, &LineEdit()}};
}

CAddressPartEditor::CAddressPartEditor(SheetRecord& record, RowSet address, QWidget* page)
    : CPartEditor(record, address, page), m_street(new CMultiEdit({}, this)) {
  setAccessibleName(QStringLiteral("Address"));
  m_street->setVisible(false);
  m_street->setAccessibleName(FindRule(address, 0)->Label.toString());
  connect(m_street, &QPlainTextEdit::textChanged, this,
          [this] { SetValue(m_street->toPlainText()); });
}

EditField CAddressPartEditor::Field() const {
  return EditedPart() == 0 ? FieldOf(*m_street) : CPartEditor::Field();
}

ControlMap CAddressPartEditor::Controls() const {
  return {{RecordSheetIds::kStreetEdit, m_street}, {RecordSheetIds::kAddressPartEdit, &LineEdit()}};
}

void CAddressPartEditor::ShowField(int part, const QRect& area, const QString& value) {
  if (part != 0) return CPartEditor::ShowField(part, area, value);
  // The editor knows one kind of line end and of blank only: it changes nothing by being shown.
  const QSignalBlocker untouched(m_street);
  m_street->setPlainText(value);
  m_street->setGeometry(area);
  m_street->show();
  m_street->setFocus(Qt::OtherFocusReason);
  m_street->selectAll();
}

void CAddressPartEditor::HideFields() {
  CPartEditor::HideFields();
  m_street->hide();
}

}  // namespace quill
