#include "app/ui/ConsentDlg.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "infrared/OfferText.h"
#include "platform/TextFitting.h"
#include "platform/ui/RowPainter.h"
#include "resources/InfraredDialogs.h"

namespace quill {

namespace {

void ShowText(const CDialog& dialog, int id, const QString& text) {
  auto& label = *qobject_cast<QLabel*>(dialog.Control(id));
  label.setText(ElideText(text, label.width(), NormalTextWidth()));
  label.setAccessibleName(text);
  label.setVisible(!text.isEmpty());
}

}  // namespace

CConsentDlg::CConsentDlg(CScreen& screen, const ObexOffer& offer)
    : CDialog(screen, resources::kConsentDialog) {
  const OfferText text = DescribeOffer(offer);
  ShowText(*this, ConsentIds::kPeer, text.Peer);
  ShowText(*this, ConsentIds::kAddress, text.Address);
  ShowText(*this, ConsentIds::kCard, text.Card);
  // Whom nobody can name, nobody can trust.
  Control(ConsentIds::kAlways)->setVisible(!offer.Peer.isEmpty());
  FollowButton(kResultYes);
  FollowButton(kResultNo);
}

void CConsentDlg::FollowButton(int id) {
  connect(qobject_cast<QPushButton*>(Control(id)), &QPushButton::clicked, this,
          [this, id] { EndDialog(id); });
}

bool CConsentDlg::IsAlwaysChecked() const {
  return qobject_cast<QCheckBox*>(Control(ConsentIds::kAlways))->isChecked();
}

// No button either, for the same key.
void CConsentDlg::FocusFirstControl() { setFocus(Qt::ActiveWindowFocusReason); }

}  // namespace quill
