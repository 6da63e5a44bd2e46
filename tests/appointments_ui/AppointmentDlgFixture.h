// A fixture that opens the appointment dialog and lets a test act in it.
#pragma once

#include <QLineEdit>

#include "appointments/ui/AppointmentOpening.h"
#include "appointments/ui/AppointmentRowList.h"
#include "appointments_ui/AppointmentFixture.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/TimePicker.h"
#include "resources/AppointmentIds.h"

namespace quill::test {

class AppointmentDlgFixture : public AppointmentFixture {
 protected:
  // Each runs the dialog and the steps in it.
  int AddFor(const QString& fileAs, std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return AddAppointment(*m_screen, fileAs);
  }
  int Add(std::vector<Step> steps) { return AddFor(QStringLiteral("Kim"), std::move(steps)); }
  int Edit(Oid oid, std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return EditAppointment(*m_screen, oid);
  }
  using AppointmentFixture::Add;

  CWindow& Dialog() { return *m_screen->Topmost(); }
  CAppointmentRowList& Rows() { return *Dialog().findChild<CAppointmentRowList*>(); }
  // The value that the row shows.
  QString RowText(AppointmentRow row) {
    for (const PaintedItem& item : Rows().Rows()[static_cast<std::size_t>(row)].Items)
      if (!item.Text.isEmpty() && item.Alignment == TextAlign::Left) return item.Text;
    return {};
  }
  QString Subject() { return Get<QLineEdit>(AppointmentIds::kSubject).text(); }
  QDate Date(int id) { return Get<CDatePicker>(id).ShownDate(); }
  QTime Time(int id) { return Get<CTimePicker>(id).time(); }
  int Index(int id) { return Get<QComboBox>(id).currentIndex(); }
  Step Set(int id, const QString& text) {
    return [this, id, text] { Get<QLineEdit>(id).setText(text); };
  }
  Step Chooses(int id, int index) {
    return [this, id, index] { Choose(id, index); };
  }
  // What an existing appointment is, after the dialog was opened on it and ended with OK.
  AppointmentItem Saved(const AppointmentItem& item, std::vector<Step> steps) {
    const Oid oid = Add(item);
    steps.push_back(OK());
    EXPECT_EQ(Edit(oid, std::move(steps)), kResultOK);
    return Stored(oid);
  }
};

}  // namespace quill::test
