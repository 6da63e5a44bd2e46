// A pen widget of 60 x 60 pixels that writes down what it is told: "press 3,4".
#pragma once

#include <QStringList>

#include <utility>

#include "platform/ui/PenWidget.h"

namespace quill::test {

class PenLog : public CPenWidget {
 public:
  PenLog(QWidget* parent, QPoint origin) : CPenWidget(parent) {
    setGeometry(QRect(origin, QSize(60, 60)));
    show();
  }

  // What was written since the last time.
  QStringList Take() { return std::exchange(m_log, {}); }

 protected:
  void PenPress(QPoint at) override { Write("press", at); }
  void PenMove(QPoint at) override { Write("move", at); }
  void PenRelease(QPoint at) override { Write("release", at); }
  void PenHover(QPoint at) override { Write("hover", at); }

 private:
  void Write(const char* what, QPoint at) {
    m_log.append(QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(at.x()).arg(at.y()));
  }

  QStringList m_log;
};

}  // namespace quill::test
