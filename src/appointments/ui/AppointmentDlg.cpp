#include "appointments/ui/AppointmentDlg.h"

#include "appointments/ui/AppointmentRowList.h"
#include "appointments/ui/RecurrenceSheet.h"
#include "memo/MemoState.h"
#include "memo/ui/InkMemoDialog.h"
#include "platform/Clock.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/WaitCursor.h"
#include "resources/AppointmentDialogs.h"
#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"

namespace quill {

namespace {

void Tell(const QString& text, PromptIcon icon) {
  g_services.Prompt->Show({.Text = text, .Icon = icon});
}

QString HeadingOf(DialogMode mode) {
  return mode == DialogMode::NewAppointment ? QStringLiteral("New Appointment")
                                            : QStringLiteral("Appointment");
}

}  // namespace

CAppointmentDlg::CAppointmentDlg(CScreen& screen, DialogMode mode)
    : CDialog(screen, resources::kAppointmentDialog),
      m_mode(mode),
      m_rows(new CAppointmentRowList(HeadingOf(mode), this)),
      m_controls(*this) {
  m_rows->lower();
  m_rows->setGeometry(rect());
  m_rows->Chosen = [this](AppointmentRow row) { Choose(row); };
  m_controls.Changed = [this] { m_rows->ShowForm(m_controls.Form()); };
  m_controls.PatternAsked = [this] { EditPattern(); };
}

CAppointmentDlg::CAppointmentDlg(CScreen& screen, const QString& subject)
    : CAppointmentDlg(screen, DialogMode::NewAppointment) {
  m_subject = subject;
}

CAppointmentDlg::CAppointmentDlg(CScreen& screen, Oid oid)
    : CAppointmentDlg(screen, DialogMode::ExistingAppointment) {
  m_oid = oid;
}

void CAppointmentDlg::OnInitDialog() {
  AppointmentForm form = NewAppointmentForm(m_subject, g_services.Clock->Now());
  m_controls.FillLists(form.Start.Date);
  m_controls.ShowForm(form);
  TakeAppointment();
  if (!m_item) return;
  m_pattern = m_item->Recurrence.value_or(DefaultPattern(*m_item));
  if (m_mode == DialogMode::ExistingAppointment) m_controls.ShowForm(FormOf(*m_item));
  m_storedChoice = m_controls.Form().Recurrence;
}

// A new one is filled from the controls at once. An existing one that cannot be read is none.
void CAppointmentDlg::TakeAppointment() {
  if (m_mode == DialogMode::ExistingAppointment) {
    m_item = OpenAppointment(m_oid);
  } else {
    m_item = CreateAppointment();
    PutForm(m_controls.Form(), *m_item);
  }
}

void CAppointmentDlg::FocusFirstControl() { m_rows->setFocus(Qt::ActiveWindowFocusReason); }

// The focus goes first: what is hidden would hand it on as the Tab key does.
void CAppointmentDlg::Choose(AppointmentRow row) {
  CommitInput();
  m_rows->setFocus(Qt::OtherFocusReason);
  m_controls.Reveal(row);
  m_rows->SetRevealed(row);
  if (row == AppointmentRow::Memo) EditMemo();
}

void CAppointmentDlg::EditPattern() {
  CRecurrenceSheet sheet(Screen(), m_pattern, m_controls.Form().Start.Date);
  if (sheet.DoModal() == kResultOK)
    m_pattern = sheet.Pattern();
  else
    m_controls.SetRecurrence(m_storedChoice);
}

void CAppointmentDlg::EditMemo() {
  if (!m_item) return;
  g_memo.Buffer = m_item->BodyInk;
  const int result = CInkMemoDialog(Screen(), QString(), InkMemoKind::Existing).DoModal();
  const QByteArray ink = std::exchange(g_memo.Buffer, {});
  if (result == kResultOK && !PutAppointmentInk(*m_item, ink))
    Tell(QStringLiteral("Cannot save. Memo exceeded memory limitation."), PromptIcon::Warning);
}

void CAppointmentDlg::OnOK() {
  CommitInput();
  if (m_controls.Form().Subject.isEmpty())
    return Tell(QStringLiteral("Subject is empty..."), PromptIcon::None);
  if (Save()) return EndDialog(kResultOK);
  Tell(QStringLiteral("Cannot save. Please check the Start/End date and Recurrence pattern."),
       PromptIcon::Warning);
}

bool CAppointmentDlg::Save() {
  if (!m_item) return false;
  const AppointmentForm form = m_controls.Form();
  PutForm(form, *m_item);
  PutRecurrence(*m_item, form.Recurrence, m_pattern);
  const WaitCursor wait;
  return SaveAppointment(*m_item);
}

}  // namespace quill
