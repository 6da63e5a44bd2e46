#include "appointments/ui/AppointmentDlg.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

#include "appointments/ui/AppointmentRowList.h"
#include "appointments/ui/RecurrenceSheet.h"
#include "platform/Clock.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "platform/ui/WaitCursor.h"
#include "resources/AppointmentDialogs.h"
#include "store/AppointmentStore.h"

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
      m_visibleHeight(height()),
      m_rows(new CAppointmentRowList(HeadingOf(mode), this)),
      m_controls(*this) {
  m_rows->lower();
  m_rows->setGeometry(rect());
  m_rows->Chosen = [this](std::optional<AppointmentRow> row) { Choose(row); };
  m_rows->Reached = [this](AppointmentRow row) { ShowRow(row); };
  connect(qobject_cast<QPushButton*>(Control(AppointmentIds::kMemo)), &QPushButton::clicked, this,
          &CAppointmentDlg::EditMemo);
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
  m_controls.ShowForm(NewAppointmentForm(m_subject, g_services.Clock->Now()));
  TakeAppointment();
  if (!m_item) return;
  m_ink.emplace(Screen(), *m_item);
  if (m_mode == DialogMode::ExistingAppointment) m_controls.ShowForm(FormOf(*m_item));
  m_seen = m_controls.Form();
  m_storedChoice = m_seen.Recurrence;
  m_isDefaultPattern = !m_item->Recurrence;
  m_pattern = m_isDefaultPattern ? DefaultPattern(*m_item) : *m_item->Recurrence;
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

void CAppointmentDlg::OnVisibleAreaChanged(QRect area) {
  m_visibleHeight = area.height();
  // Not from under a pen, whose press may have lowered the panel: the next tap sees to it.
  if (!Screen().IsPenDown()) ScrollTo(m_top);
}

void CAppointmentDlg::ShowRow(AppointmentRow row) {
  const QRect area = AppointmentRowArea(row);
  const int lowest = area.bottom() + 1 + area.height() - m_visibleHeight;
  const int highest = area.top() - area.height();
  ScrollTo(std::min(std::max(m_top, lowest), highest));
}

void CAppointmentDlg::ScrollTo(int top) {
  const int after = std::clamp(top, 0, std::max(height() - m_visibleHeight, 0));
  scroll(0, std::exchange(m_top, after) - after);
}

void CAppointmentDlg::wheelEvent(QWheelEvent* event) {
  const int height = AppointmentRowArea(AppointmentRow::Subject).height();
  ScrollTo(m_top - height * event->angleDelta().y() / QWheelEvent::DefaultDeltasPerStep);
  event->accept();
}

void CAppointmentDlg::FocusFirstControl() { m_rows->setFocus(Qt::ActiveWindowFocusReason); }

void CAppointmentDlg::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || !m_rows->Revealed()) return CDialog::keyPressEvent(event);
  if (!event->isAutoRepeat()) Choose(std::nullopt);
}

// The focus goes first: what is hidden would hand it on as the Tab key does.
void CAppointmentDlg::Choose(std::optional<AppointmentRow> row) {
  CommitInput();
  m_rows->setFocus(Qt::OtherFocusReason);
  m_controls.Reveal(row);
  if (row == AppointmentRow::Memo) {
    m_rows->SetRevealed(std::nullopt);
    EditMemo();
  } else {
    m_rows->SetRevealed(row);
    row ? ShowRow(*row) : ScrollTo(m_top);
  }
}

// A start or an end that was changed since becomes the pattern's: the wizard edits neither. Where
// they were not, the pattern keeps its own.
void CAppointmentDlg::FollowMoments() {
  const AppointmentForm form = m_controls.Form();
  if (!m_item || (form.Start == m_seen.Start && form.End == m_seen.End)) return;
  m_seen = form;
  PutForm(form, *m_item);
  if (m_isDefaultPattern)
    m_pattern = DefaultPattern(*m_item);
  else
    PutMoments(m_pattern, *m_item);
}

void CAppointmentDlg::EditPattern() {
  FollowMoments();
  CRecurrenceSheet sheet(Screen(), m_pattern, m_controls.Form().Start.Date);
  if (sheet.DoModal() != kResultOK) return m_controls.SetRecurrence(m_storedChoice);
  m_pattern = sheet.Pattern();
  m_isDefaultPattern = false;
}

void CAppointmentDlg::EditMemo() {
  if (m_ink) m_ink->Edit(m_controls.Form().Subject);
}

void CAppointmentDlg::OnOK() {
  CommitInput();
  if (m_controls.Form().Subject.isEmpty())
    return Tell(QStringLiteral("Subject is empty..."), PromptIcon::None);
  if (!Save())
    return Tell(
        QStringLiteral("Cannot save. Please check the Start/End date and Recurrence pattern."),
        PromptIcon::Warning);
  m_ink->Discard();
  EndDialog(kResultOK);
}

// By the user, not by the program's end.
void CAppointmentDlg::OnCancel() {
  if (m_ink) m_ink->Discard();
  CDialog::OnCancel();
}

// What is not saved leaves the appointment in hand as it was.
bool CAppointmentDlg::Save() {
  if (!m_item) return false;
  FollowMoments();
  const AppointmentForm form = m_controls.Form();
  AppointmentItem item = *m_item;
  PutForm(form, item);
  PutRecurrence(item, form.Recurrence, m_pattern);
  const WaitCursor wait;
  return SaveAppointment(item);
}

}  // namespace quill
