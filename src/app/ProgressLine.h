// How far long work is, on one line of the terminal that is written over and gone at the end.
#pragma once

#include <QElapsedTimer>
#include <QString>

#include "app/Console.h"

namespace quill {

class ProgressLine {
 public:
  // Writes nothing unless somebody watches.
  explicit ProgressLine(const Console& console);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // Several times a second at most; work that is done sooner shows nothing.
  void Show(const QString& text);

 private:
  const Console& m_console;
  QElapsedTimer m_sinceShown;
  bool m_shown = false;
};

}  // namespace quill
