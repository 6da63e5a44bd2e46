// The device's infrared folder, by which contacts go to other devices and come from them: whatever
// really carries them, it looks like this.
//
// Nothing here waits for another device: sending and receiving go on behind the answer, on the
// event loop, and how they end is written to the log only. What is received is in the store before
// the program is told of it as of a change that others made.
#pragma once

#include <QtGlobal>

namespace quill {

class InfraredFolder {
 public:
  virtual ~InfraredFolder() = default;

  // Begins with an empty queue. False when there is nothing by which anything could be sent.
  virtual bool Open() = 0;
  // Queues a contact, by its Oid, as it is now. False when it cannot be queued; the others stay.
  virtual bool AddItem(qint32 oid) = 0;
  // Sends the queue, in its order and in one session, and empties it. An empty one is sent as well:
  // that carries nothing. False when no sending was begun.
  virtual bool Send() = 0;
  // Takes what is sent to this device, for a while; begun anew while it goes on. Needs no Open.
  // False when nothing can be received.
  virtual bool Receive() = 0;
};

}  // namespace quill
