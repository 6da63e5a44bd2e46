#include "platform/ui/Dialog.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPushButton>

#include "platform/ChromeLayout.h"
#include "platform/ui/ControlFactory.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr Rgb kDialogBorder = 0x2F5568;

}  // namespace

CDialog::CDialog(CScreen& screen, const resources::DialogResource& resource)
    : CModalWindow(screen),
      m_size(resource.Place.Width == 0 ? WindowSize::FullScreen : WindowSize::Small) {
  if (m_size == WindowSize::Small) setGeometry(ToRect(resource.Place));
  SetCaption(resource.Caption.toString());
  for (const resources::DialogControl& control : resource.Controls) AddDialogControl(control);
}

QWidget* CDialog::AddDialogControl(const resources::DialogControl& control) {
  QWidget* const widget = MakeControl(control, Screen(), this);
  if (m_size == WindowSize::Small) widget->move(widget->pos() + QPoint(0, kSmallCaptionHeight));
  AddControl(control.Id, widget);
  FollowButton(control.Id, widget);
  return widget;
}

void CDialog::FollowButton(int id, QWidget* control) {
  auto* const button = qobject_cast<QAbstractButton*>(control);
  if (!button) return;
  // Clicked by assistive technology, it is reached by neither pen nor focus.
  connect(button, &QAbstractButton::clicked, this, [] { CommitInput(); });
  if (id == kResultOK || id == kOKButton)
    connect(button, &QAbstractButton::clicked, this, [this] { OnOK(); });
  if (id == kResultCancel) connect(button, &QAbstractButton::clicked, this, [this] { OnCancel(); });
}

void CDialog::paintEvent(QPaintEvent* event) {
  CModalWindow::paintEvent(event);
  if (m_size == WindowSize::FullScreen) return;
  QPainter painter(this);
  DrawRow(painter, LayOutSmallCaption(Caption(), width()));
  DrawFrame(painter, rect(), kDialogBorder);
}

}  // namespace quill
