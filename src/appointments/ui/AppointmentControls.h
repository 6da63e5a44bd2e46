// The controls of the appointment dialog: how a form comes into them and is read from them, which
// of them are shown, and what follows when one is changed.
#pragma once

#include <functional>

#include "appointments/AppointmentRows.h"
#include "appointments/ui/SoundPreview.h"

class QWidget;

namespace quill {

class CDialog;
class CDropDown;

class AppointmentControls {
 public:
  // The dialog has them and outlives this.
  explicit AppointmentControls(CDialog& dialog);

  // To be called once, before a form is shown; start is what the texts of the recurrence speak of.
  void FillLists(QDate start);
  void ShowForm(const AppointmentForm& form);
  AppointmentForm Form() const;
  void SetRecurrence(RecurrenceChoice choice);

  // Hides all of them, and shows those of the row with the focus in the first one that is enabled.
  void Reveal(AppointmentRow row);

  // Called after each change by the user.
  std::function<void()> Changed;
  // Called each time the user chooses to edit the pattern.
  std::function<void()> PatternAsked;

 private:
  template <class Widget>
  Widget& Get(int id) const;
  CDropDown& List(int id) const;
  void TellChanged() const;

  void NameControls();
  void FollowTexts();
  void FollowMoments();
  void FollowLists();

  Moment MomentOf(int dateId, int timeId) const;
  void SetMoment(int dateId, int timeId, const Moment& moment);
  void StartChanged();
  void RefillRecurrence();
  void RecurrenceChosen(int index);
  bool HasAlarm() const;
  void EnableAlarm();
  void SoundChosen();

  CDialog& m_dialog;
  SoundPreview m_sound;
};

}  // namespace quill
