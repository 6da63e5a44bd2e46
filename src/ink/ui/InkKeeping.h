// Keeps a front end's note against a crash, and offers what an earlier run left of it: in a bar
// over the lower end of the front end, "Unsaved ink from 09:30" or "Not saved: Kim, 09:30", with
// "Restore" and "Discard".
#pragma once

#include <deque>
#include <memory>

#include "ink/InkRecovery.h"
#include "platform/ui/OfferBar.h"

namespace quill {

class InkX;

class InkKeeping {
 public:
  // name: of the note's recovery file; owner: what an offer of it says, where its name is that of
  // others' notes too. To be made once the control shows the note as it is stored.
  // The control and the window, in which the bar stands, outlive this.
  InkKeeping(InkX& ink, const QString& name, QWidget& window, const QString& owner = {});
  ~InkKeeping();

  // After each change of the window's size.
  void PlaceBar();
  ControlMap Controls() const { return m_bar->Controls(); }

  // The note is saved or given up. What is still offered will be offered again.
  void Discard();
  // The note is deleted: nothing of it is left, nor offered.
  void DiscardAll();

 private:
  struct Offer {
    QString Name;
    UnsavedInk Ink;
  };

  void FindOffers(const QString& name);
  void Restore();
  void DropOffer();

  InkX& m_ink;
  QWidget& m_window;
  QString m_owner;
  std::unique_ptr<COfferBar> m_bar;         // a child of the window
  std::deque<Offer> m_offers;               // the first one is shown
  std::unique_ptr<InkRecovery> m_recovery;  // in a file that nothing is offered from
};

}  // namespace quill
