#include "editor/ui/RowEditors.h"

#include <QFocusEvent>

#include <utility>

#include "editor/ui/EditField.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/Edit.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

Qt::InputMethodHints HintsOf(RowEntry entry) {
  switch (entry) {
    case RowEntry::Number:
      return Qt::ImhDialableCharactersOnly;
    case RowEntry::Email:
      return Qt::ImhEmailCharactersOnly;
    case RowEntry::Web:
      return Qt::ImhUrlCharactersOnly;
    case RowEntry::Any:
      break;
  }
  return Qt::ImhNone;
}

// A popup and another program take the focus for a while only: the edit goes on after them.
bool IsForGood(const QFocusEvent& event) {
  return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

// Tells when an editor has lost the focus.
template <typename Editor>
class Leaving : public Editor {
 public:
  template <typename... Arguments>
  explicit Leaving(const std::function<void()>& left, Arguments&&... arguments)
      : Editor(std::forward<Arguments>(arguments)...), m_left(left) {}

 protected:
  void focusOutEvent(QFocusEvent* event) override {
    Editor::focusOutEvent(event);
    if (IsForGood(*event) && m_left) m_left();
  }

 private:
  const std::function<void()>& m_left;
};

}  // namespace

void RowEditors::MakeText() {
  auto* const edit = new Leaving<CEdit>(Left, QString(), &m_list);
  edit->ItemToAdd = [this] { return ItemToAdd(); };
  m_text = edit;
  m_text->setMaxLength(kLongestText);
  QObject::connect(m_text, &QLineEdit::textChanged, m_text,
                   [this](const QString& text) { TextChanged(text); });
}

void RowEditors::MakeChoice() {
  m_choice = new Leaving<CDropDown>(Left, *ScreenAround(&m_list), &m_list);
  QObject::connect(m_choice, &QComboBox::textActivated, m_choice,
                   [this](const QString& text) { Chosen(text); });
}

void RowEditors::MakeDate() {
  m_date = new CDatePicker(NoneCheck::Shown, &m_list);
  m_date->HandOnUpAndDown();
  m_date->Changed = [this] { DateChanged(m_date->Date()); };
  m_date->Left = [this] { Left(); };
}

void RowEditors::EditText(const QRect& area, const QString& text, RowEntry entry) {
  if (!m_text) MakeText();
  m_text->setInputMethodHints(HintsOf(entry));
  const QSignalBlocker untouched(m_text);
  m_text->setText(text);
  Show(*m_text, area);
  m_text->selectAll();
}

void RowEditors::EditChoice(const QRect& area, const QStringList& texts, const QString& chosen) {
  if (!m_choice) MakeChoice();
  m_choice->clear();
  m_choice->addItems(texts);
  m_choice->setCurrentIndex(static_cast<int>(texts.indexOf(chosen)));
  Show(*m_choice, area);
}

void RowEditors::EditDate(const QRect& area, std::optional<QDate> date, QDate today) {
  if (!m_date) MakeDate();
  m_date->SetDate(date, today);
  Show(*m_date, area);
}

void RowEditors::Show(QWidget& editor, const QRect& area) {
  m_shown = &editor;
  editor.setAccessibleName(Name);
  editor.setGeometry(area);
  editor.show();
  editor.setFocus(Qt::OtherFocusReason);
}

void RowEditors::Move(const QRect& area) {
  if (m_shown) m_shown->setGeometry(area);
}

void RowEditors::Hide() {
  if (QWidget* const shown = std::exchange(m_shown, nullptr)) shown->hide();
}

ControlMap RowEditors::Controls() const {
  ControlMap controls;
  if (m_text) controls[RecordSheetIds::kRowEdit] = m_text;
  if (m_choice) controls[RecordSheetIds::kRowDropDown] = m_choice;
  if (m_date) controls[RecordSheetIds::kRowDate] = m_date;
  return controls;
}

}  // namespace quill
