// Shows what other programs ask of the list: each request as soon as no dialog and no menu is open
// and the pen is up. What waits stands in g_pendingRequest and outlives this.
#pragma once

#include <QString>

#include "list/PendingRequest.h"
#include "platform/Timers.h"

namespace quill {

class CContactsView;

class RequestOpening : private TimerTarget {
 public:
  explicit RequestOpening(CContactsView& view) : m_view(view) {}  // which outlives this
  ~RequestOpening() override;
  RequestOpening(const RequestOpening&) = delete;
  RequestOpening& operator=(const RequestOpening&) = delete;

  // True when it will be shown. That nobody has the name asked for is told the user, and changes
  // nothing about a request that waits.
  bool OnCopyData(int kind, const QString& text);
  // The same for a memo file, by its device path.
  void OpenMemoFile(const QString& path);
  // Goes on with what waits already.
  void Await();

 private:
  void OnTimer(int id) override;
  bool IsIdle() const;
  void TellNobodyFound();
  void Show(const PendingRequest& request);

  CContactsView& m_view;
};

}  // namespace quill
