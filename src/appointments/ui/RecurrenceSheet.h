// The recurrence wizard: a sheet of two pages, the pattern and its range, on which "Back" and
// "Next" lead to and fro. Only "Done" and OK write, on whichever page they are pressed, and both
// pages then.
#pragma once

#include "platform/ui/Sheet.h"
#include "store/RecurrencePattern.h"

class QPushButton;

namespace quill {

class CRecurrenceSheet : public CSheet {
  Q_OBJECT
 public:
  // startDay: the appointment's first day.
  CRecurrenceSheet(CScreen& screen, const RecurrencePattern& pattern, QDate startDay);

  // As it was given until the sheet ended with OK, and from then on as it was edited.
  const RecurrencePattern& Pattern() const { return m_pattern; }

 protected:
  QRect PageArea() const override;
  void OnPageShown() override;

 private:
  void MakeButtons();
  bool IsOnLastPage() const;
  void GoNext();
  void GoBack();

  RecurrencePattern m_pattern;
  QPushButton* m_back = nullptr;
  QPushButton* m_next = nullptr;
};

}  // namespace quill
