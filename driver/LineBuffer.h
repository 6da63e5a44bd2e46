// Cuts a stream of bytes into lines.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

namespace quill::driver {

// A line without its line feed. One that was longer than the limit has no text.
struct InputLine {
  QByteArray Text;
  bool TooLong = false;
};

class LineBuffer {
 public:
  // limit: the longest line that is kept, in bytes.
  explicit LineBuffer(qsizetype limit) : m_limit(limit) {}

  // The lines that these bytes complete.
  std::vector<InputLine> Add(QByteArrayView bytes);
  // The last line, when the stream does not end with a line feed.
  std::optional<InputLine> Finish();

 private:
  void Keep(QByteArrayView bytes);
  InputLine Take();

  qsizetype m_limit;
  InputLine m_line;
};

}  // namespace quill::driver
