#include "driver/LineBuffer.h"

#include <utility>

namespace quill::driver {

std::vector<InputLine> LineBuffer::Add(QByteArrayView bytes) {
  std::vector<InputLine> lines;
  for (qsizetype end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n')) {
    Keep(bytes.first(end));
    lines.push_back(Take());
    bytes = bytes.sliced(end + 1);
  }
  Keep(bytes);
  return lines;
}

std::optional<InputLine> LineBuffer::Finish() {
  if (m_line.Text.isEmpty() && !m_line.TooLong) return std::nullopt;
  return Take();
}

void LineBuffer::Keep(QByteArrayView bytes) {
  if (m_line.Text.size() + bytes.size() > m_limit) {
    m_line.TooLong = true;
    m_line.Text.clear();
  }
  if (!m_line.TooLong) m_line.Text.append(bytes.data(), bytes.size());
}

InputLine LineBuffer::Take() { return std::exchange(m_line, InputLine{}); }

}  // namespace quill::driver
