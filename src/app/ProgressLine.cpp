#include "app/ProgressLine.h"

namespace quill {
namespace {

constexpr qint64 kPauseMilliseconds = 200;
const char* const kEraseLine = "\r\x1b[K";

}  // namespace

ProgressLine::ProgressLine(const Console& console) : m_console(console) { m_sinceShown.start(); }

ProgressLine::~ProgressLine() {
  if (m_shown) m_console.Err << kEraseLine << Qt::flush;
}

void ProgressLine::Show(const QString& text) {
  if (!m_console.IsTerminal || m_sinceShown.elapsed() < kPauseMilliseconds) return;
  m_sinceShown.restart();
  m_shown = true;
  m_console.Err << kEraseLine << text << Qt::flush;
}

}  // namespace quill
