#include "appointments/ui/AppointmentPreviewDlg.h"

#include <QPainter>
#include <QPushButton>

#include "appointments/ui/AppointmentPreviewFace.h"
#include "ink/ui/InkEditing.h"
#include "ink/ui/InkX.h"
#include "memo/MemoState.h"
#include "platform/ui/RowPainter.h"
#include "resources/AppointmentPreviewDialog.h"
#include "store/AppointmentStore.h"

namespace quill {

namespace {

constexpr int kBesideNote = 100;  // of the height, above and below it
constexpr Rgb kBorder = 0x2F5568;

// Drawn over the control, whose page needs its whole width.
class CNoteBorder : public QWidget {
 public:
  explicit CNoteBorder(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    DrawFrame(painter, rect(), kBorder);
  }
};

}  // namespace

CAppointmentPreviewDlg::CAppointmentPreviewDlg(CScreen& screen, Oid appointment)
    : CDialog(screen, resources::kAppointmentPreviewDialog),
      m_appointment(appointment),
      m_commands({{AppointmentPreviewIds::kModify, AppointmentPreviewIds::kModify,
                   [this](int) { EndDialog(AppointmentPreviewIds::kModifyResult); }},
                  {AppointmentPreviewIds::kDelete, AppointmentPreviewIds::kDelete,
                   [this](int) { EndDialog(AppointmentPreviewIds::kDeleteResult); }}}) {
  for (const PreviewButton button : kPreviewButtons)
    connect(qobject_cast<QPushButton*>(Control(CommandOf(button))), &QPushButton::clicked, this,
            [this, button] { RunCommand(CommandOf(button)); });
}

CAppointmentPreviewDlg::~CAppointmentPreviewDlg() { g_memo.Buffer.clear(); }

CommandRoute CAppointmentPreviewDlg::Route() const {
  CommandRoute route;
  route.Add(m_commands);
  return route;
}

void CAppointmentPreviewDlg::OnInitDialog() {
  const auto item = OpenAppointment(m_appointment);
  if (!item) return;
  g_memo.Buffer = item->BodyInk;
  m_face = new CAppointmentPreviewFace(PreviewOf(*item), this);
  m_face->Chosen = [this](int command) { RunCommand(command); };
  m_ink = new InkX(this, InkAccess::ReadOnly);
  PutInkIn(*m_ink, g_memo.Buffer);
  ShowInkAsPage(*m_ink);
  m_frame = new CNoteBorder(this);
  PlaceParts();
}

void CAppointmentPreviewDlg::FocusFirstControl() {
  m_ink ? m_ink->setFocus(Qt::ActiveWindowFocusReason) : CDialog::FocusFirstControl();
}

void CAppointmentPreviewDlg::PlaceParts() {
  const QRect note(0, kPreviewNoteTop, width(), height() - kBesideNote);
  m_face->setGeometry(0, 0, width(), kPreviewNoteTop);
  m_ink->setGeometry(note);
  m_frame->setGeometry(note);
}

void CAppointmentPreviewDlg::resizeEvent(QResizeEvent*) {
  if (m_ink) PlaceParts();
}

}  // namespace quill
