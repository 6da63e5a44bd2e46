// The card over the list that says how to reach a contact. It only paints: the pen goes through it,
// and whatever pen, keys, wheel or another program do next takes it away.
#pragma once

#include "platform/ui/Window.h"
#include "store/ContactRecord.h"

namespace quill {

class CCardLines;

class CContactSummaryCard : public CWindow {
  Q_OBJECT
 public:
  explicit CContactSummaryCard(CScreen& screen);
  ~CContactSummaryCard() override;

  WindowKind Kind() const override { return WindowKind::Card; }
  WindowSize Size() const override { return WindowSize::Small; }

  // Shows the contact's card at an anchor in the list, whose top on the screen is listTop. Nothing
  // is shown when the contact is gone.
  void ShowFor(Oid oid, int anchorY, int listTop);
  void Dismiss();
  void OnVisibleAreaChanged(QRect) override { Dismiss(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  CCardLines* m_lines;
};

}  // namespace quill
