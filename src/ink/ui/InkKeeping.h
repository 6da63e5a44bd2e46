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

// Where a note is kept.
struct InkKeepingPlace {
  QString Name;           // of its recovery file; a number follows where that one is offered
  bool IsShared = false;  // others' notes have that name too
  QString Owner = {};     // what an offer of it says then
  QString File = {};      // the one of this name that holds it already, which is not offered
};

class InkKeeping {
 public:
  // To be made once the control shows the note as it is stored. The control and the window, in
  // which the bar stands, outlive this.
  InkKeeping(InkX& ink, const InkKeepingPlace& place, QWidget& window);
  ~InkKeeping();

  // The one in which the note is kept, once there is anything to keep.
  const QString& File() const { return m_file; }

  // After each change of the window's size.
  void PlaceBar();
  ControlMap Controls() const { return m_bar->Controls(); }

  // The note is saved or given up. What is still offered will be offered again.
  void Discard();
  // The note is deleted: nothing of it is left, nor offered. Others' notes still are.
  void DiscardDeleted();

 private:
  struct Offer {
    QString Name;
    UnsavedInk Ink;
  };

  void FindOffers(const InkKeepingPlace& place);
  void KeepIn(const QString& file);
  void Restore();
  void DropOffer();

  InkX& m_ink;
  QWidget& m_window;
  const bool m_isShared;
  const QString m_owner;
  QString m_file;                           // nothing is offered from it
  std::unique_ptr<COfferBar> m_bar;         // a child of the window
  std::deque<Offer> m_offers;               // the first one is shown
  std::unique_ptr<InkRecovery> m_recovery;  // in that file
};

}  // namespace quill
