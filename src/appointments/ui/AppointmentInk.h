// The handwriting of the appointment in an open dialog: its editor, and the recovery file that
// holds it until the appointment is stored or given up.
#pragma once

#include <optional>

#include "store/AppointmentItem.h"

namespace quill {

class CScreen;

class AppointmentInk {
 public:
  // The item is the dialog's, and outlives this.
  AppointmentInk(CScreen& screen, AppointmentItem& item);

  // Opens the editor, and puts into the item what that ended with. The user is told of ink that is
  // too long for the store; it is there when the editor is opened again.
  // subject: what an offer of a new appointment's ink says.
  void Edit(const QString& subject);
  // The appointment is stored or given up: nothing is lost any more.
  void Discard();

 private:
  QByteArray InHand() const { return m_refused.value_or(m_item.BodyInk); }
  std::optional<QByteArray> RunEditor(const QString& owner);
  void Put(const QByteArray& ink);
  void Keep(const QString& owner);

  CScreen& m_screen;
  AppointmentItem& m_item;
  const QByteArray m_stored;
  std::optional<QByteArray> m_refused;  // by the store
  QString m_file;                       // the recovery file, once the editor was open
};

}  // namespace quill
