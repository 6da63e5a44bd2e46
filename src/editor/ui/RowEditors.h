// The editors that a row list puts over the value of the row that is edited: for texts, for a
// choice of a list, for days. Each is made when it is needed first; then it moves from row to row.
#pragma once

#include <QDate>
#include <QRect>
#include <QStringList>

#include <functional>
#include <optional>

#include "editor/RowRules.h"
#include "platform/ui/EditMenu.h"
#include "platform/ui/Window.h"

class QComboBox;
class QLineEdit;

namespace quill {

class CDatePicker;

class RowEditors {
 public:
  // The editors become children of the list, which stands in a screen.
  explicit RowEditors(QWidget& list) : m_list(list) {}

  // Each shows its editor in the area of the list, with the focus. Texts are selected as a whole.
  void EditText(const QRect& area, const QString& text, RowEntry entry);
  void EditChoice(const QRect& area, const QStringList& texts, const QString& chosen);
  void EditDate(const QRect& area, std::optional<QDate> date, QDate today);

  void Move(const QRect& area);
  // What had the focus must have lost it before.
  void Hide();

  QLineEdit* Text() const { return m_text; }  // null before it was needed
  ControlMap Controls() const;

  // What the editor that is shown next is called.
  QString Name;
  std::function<void(const QString& text)> TextChanged;
  std::function<void(const QString& text)> Chosen;
  std::function<void(std::optional<QDate> date)> DateChanged;
  // What the menu of the text's editor offers besides.
  std::function<std::optional<AddedMenuItem>()> ItemToAdd;
  // Another control of the window got the focus.
  std::function<void()> Left;

 private:
  void MakeText();
  void MakeChoice();
  void MakeDate();
  void Show(QWidget& editor, const QRect& area);

  QWidget& m_list;
  QLineEdit* m_text = nullptr;
  QComboBox* m_choice = nullptr;
  CDatePicker* m_date = nullptr;
  QWidget* m_shown = nullptr;
};

}  // namespace quill
