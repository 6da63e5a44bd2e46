// The controls of the appointment dialog: how a form comes into them and is read from them, which
// of them are shown, and what follows when one is changed.
#pragma once

#include <QObject>

#include <functional>
#include <optional>

#include "appointments/AppointmentRows.h"
#include "appointments/ui/SoundPreview.h"

class QWidget;

namespace quill {

class CDialog;
class CDropDown;

class AppointmentControls : public QObject {
 public:
  // The dialog has them and outlives this.
  explicit AppointmentControls(CDialog& dialog);

  // Fills the lists too. Calls Changed.
  void ShowForm(const AppointmentForm& form);
  // A start or an end that was not changed is the one that was shown, also where its picker cannot
  // show it.
  AppointmentForm Form() const;
  void SetRecurrence(RecurrenceChoice choice);

  // Hides all of them, and shows those of the row, if any, with the focus in the first one that is
  // enabled. No sound plays on.
  void Reveal(std::optional<AppointmentRow> row);

  // Called after each change.
  std::function<void()> Changed;
  // Called each time the user chooses to edit the pattern.
  std::function<void()> PatternAsked;

 private:
  template <class Widget>
  Widget& Get(int id) const;
  CDropDown& List(int id) const;
  void TellChanged() const;

  void FillLists();
  void FollowTexts();
  void FollowMoments();
  void FollowLists();

  // The two pickers of a moment, what they were given and what they showed then.
  struct MomentPickers {
    int DateId;
    int TimeId;
    Moment Given = {};
    Moment Shown = {};
  };
  Moment Shown(const MomentPickers& pickers) const;
  Moment MomentOf(const MomentPickers& pickers) const;
  void SetMoment(MomentPickers& pickers, const Moment& moment);
  void StartChanged();
  void RefillRecurrence();
  void RecurrenceChosen(int index);
  bool HasAlarm() const;
  void EnableAlarm();
  void SoundChosen();

  CDialog& m_dialog;
  MomentPickers m_start;
  MomentPickers m_end;
  SoundPreview m_sound;
};

}  // namespace quill
