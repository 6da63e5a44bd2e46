// The local time that the program goes by.
#pragma once

#include <QDateTime>

namespace quill {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDateTime Now() const = 0;
};

class SystemClock : public Clock {
 public:
  QDateTime Now() const override;
};

}  // namespace quill
