// The wait cursor for as long as this lives.
#pragma once

#include <QGuiApplication>

namespace quill {

class WaitCursor {
 public:
  WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
  Q_DISABLE_COPY_MOVE(WaitCursor)
};

}  // namespace quill
