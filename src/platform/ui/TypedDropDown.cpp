#include "platform/ui/TypedDropDown.h"

#include "platform/ui/PanelEdit.h"

namespace quill {

namespace {

// The Tab key comes to the list, which has the focus for it, not to the editor as well.
QLineEdit* MakeCell(QWidget* list) {
  auto* const cell = new CPanelEdit({}, list);
  cell->setFocusPolicy(Qt::ClickFocus);
  return cell;
}

}  // namespace

CTypedDropDown::CTypedDropDown(CScreen& screen, QWidget* parent) : CDropDown(screen, parent) {
  setInsertPolicy(NoInsert);
  setLineEdit(MakeCell(this));
  setCompleter(nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, &CTypedDropDown::FollowText);
  connect(this, &QComboBox::activated, this, [this] { TellChanged(); });
}

void CTypedDropDown::SetText(const QString& text) {
  setCurrentIndex(findText(text));
  setEditText(text);
}

// The entry with the typed text is the current one at once: else it would be taken for a choice
// when the list loses the focus.
void CTypedDropDown::FollowText(const QString& text) {
  const int entry = findText(text);
  if (entry >= 0) setCurrentIndex(entry);
  TellChanged();
}

void CTypedDropDown::TellChanged() {
  if (Changed) Changed();
}

}  // namespace quill
