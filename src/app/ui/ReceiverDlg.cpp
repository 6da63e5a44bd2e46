#include "app/ui/ReceiverDlg.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "editor/ui/EditField.h"
#include "exchange/ObexObject.h"
#include "infrared/InfraredSettings.h"
#include "platform/PaintedRow.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/InputCommit.h"
#include "resources/InfraredDialogs.h"

namespace quill {

namespace {

constexpr int kGap = 2;
constexpr int kRowHeight = 20;
constexpr Rgb kSelection = 0xD6EDBA;
constexpr int kAddressRole = Qt::UserRole;

QLabel& FoundLabel(const CDialog& dialog) {
  return *qobject_cast<QLabel*>(dialog.Control(ReceiverIds::kFoundLabel));
}

// As the other lists mark what is selected.
QPalette SelectionPalette(QPalette palette) {
  palette.setColor(QPalette::Highlight, QColor::fromRgb(kSelection));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

QString ItemText(const ObexReceiver& receiver, const QString& address) {
  const QString name = ObexLabel(receiver.Name);
  return name.isEmpty() ? address : QStringLiteral("%1  (%2)").arg(name, address);
}

void TellWrongAddress(const QString& typed) {
  const QString example = QStringLiteral("192.168.0.7:%1").arg(kDefaultObexPort);
  const QString text = typed.isEmpty()
                           ? QStringLiteral("Choose a device or type an address, such as %1.")
                           : QStringLiteral("This is no address. One looks like %1.");
  g_services.Prompt->Show({.Text = text.arg(example)});
}

}  // namespace

CReceiverDlg::CReceiverDlg(CScreen& screen, const QString& last)
    : CDialog(screen, resources::kReceiverDialog),
      m_list(new QListWidget(this)),
      m_address(qobject_cast<QLineEdit*>(Control(ReceiverIds::kAddress))) {
  MakeList();
  MakeAddress(last);
  FoundLabel(*this).setText(QStringLiteral("No device found yet"));
}

void CReceiverDlg::MakeList() {
  AddControl(ReceiverIds::kFound, m_list);
  m_list->setAccessibleName(QStringLiteral("Devices"));
  m_list->installEventFilter(this);
  m_list->setPalette(SelectionPalette(m_list->palette()));
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_list->setCurrentIndex({});  // or the focus makes a row current, which no key selects then
  connect(m_list, &QListWidget::itemSelectionChanged, this, [this] { TakeSelected(); });
  connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { OnOK(); });
}

void CReceiverDlg::MakeAddress(const QString& last) {
  m_address->setAccessibleName(QStringLiteral("Address"));
  m_address->setPlaceholderText(QStringLiteral("host or host:port"));
  m_address->setText(last);
  connect(m_address, &QLineEdit::textEdited, m_list, [this] { m_list->clearSelection(); });
}

void CReceiverDlg::AddFound(const ObexReceiver& receiver) {
  const QString address = ReceiverText(receiver);
  for (int row = 0; row < m_list->count(); ++row)
    if (m_list->item(row)->data(kAddressRole) == address) return;
  auto* const item = new QListWidgetItem(ItemText(receiver, address), m_list);
  item->setData(kAddressRole, address);
  item->setSizeHint({0, kRowHeight});
  FoundLabel(*this).setText(QStringLiteral("Devices found"));
}

void CReceiverDlg::TakeSelected() {
  const QList<QListWidgetItem*> selected = m_list->selectedItems();
  if (!selected.isEmpty()) m_address->setText(selected.first()->data(kAddressRole).toString());
}

// The editor would raise the input panel over the devices.
void CReceiverDlg::FocusFirstControl() { m_list->setFocus(Qt::ActiveWindowFocusReason); }

// What is typed over the devices is an address.
bool CReceiverDlg::eventFilter(QObject* watched, QEvent* event) {
  const bool isAddress =
      event->type() == QEvent::KeyPress && BeginsText(*static_cast<QKeyEvent*>(event));
  if (!isAddress) return CDialog::eventFilter(watched, event);
  m_address->setFocus(Qt::OtherFocusReason);
  m_address->selectAll();
  QCoreApplication::sendEvent(m_address, event);
  return true;
}

void CReceiverDlg::OnVisibleAreaChanged(QRect area) { setGeometry(area); }

void CReceiverDlg::resizeEvent(QResizeEvent*) {
  const int top = FoundLabel(*this).geometry().bottom() + 1 + kGap;
  m_list->setGeometry(0, top, width(), height() - top);
}

void CReceiverDlg::OnOK() {
  const QString typed = EditorText(*m_address).trimmed();
  m_receiver = ParseReceiver(typed);
  if (m_receiver) return CDialog::OnOK();
  TellWrongAddress(typed);
  m_address->setFocus(Qt::OtherFocusReason);
  m_address->selectAll();
}

}  // namespace quill
