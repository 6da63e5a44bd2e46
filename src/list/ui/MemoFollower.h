// Keeps the list by memo as the memo folder is, whoever changes it.
#pragma once

#include "platform/Timers.h"

namespace quill {

class CContactsView;

class MemoFollower : public TimerTarget {
 public:
  // The view outlives this.
  explicit MemoFollower(CContactsView& view) : m_view(view) {}
  ~MemoFollower() override;
  MemoFollower(const MemoFollower&) = delete;
  MemoFollower& operator=(const MemoFollower&) = delete;

  // Memo files came, went or were renamed: by memo the list is built anew half a second after the
  // last one, and not while a dialog or menu is open or the pen is down.
  void OnMemosChanged();
  void OnTimer(int id) override;

 private:
  CContactsView& m_view;
};

}  // namespace quill
