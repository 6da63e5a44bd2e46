// To which device contacts go: one of those that were found, or an address that is typed.
#pragma once

#include <optional>

#include "infrared/ObexReceiver.h"
#include "platform/ui/Dialog.h"

class QLineEdit;
class QListWidget;

namespace quill {

// A tap on a device puts its address into the editor, a second one takes it. OK takes what stands
// in the editor, and stays when that is no address.
class CReceiverDlg : public CDialog {
  Q_OBJECT
 public:
  // last: the address that was chosen last, as a preset.
  CReceiverDlg(CScreen& screen, const QString& last);

  // One more device, also while the dialog waits. One that is listed already is not listed again.
  void AddFound(const ObexReceiver& receiver);
  // After OK.
  const std::optional<ObexReceiver>& Receiver() const { return m_receiver; }

  void OnOK() override;
  void OnVisibleAreaChanged(QRect area) override;

 protected:
  void FocusFirstControl() override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeList();
  void MakeAddress(const QString& last);
  void TakeSelected();

  QListWidget* m_list;
  QLineEdit* m_address;
  std::optional<ObexReceiver> m_receiver;
};

}  // namespace quill
