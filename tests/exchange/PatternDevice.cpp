#include "exchange/PatternDevice.h"

#include <algorithm>
#include <utility>

namespace quill::test {

PatternDevice::PatternDevice(QByteArray piece, qint64 times, qint64 perRead, QByteArray tail)
    : m_piece(std::move(piece)), m_times(times), m_perRead(perRead), m_tail(std::move(tail)) {
  open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 PatternDevice::readData(char* data, qint64 size) {
  const qint64 count = std::min({size, m_perRead, Length() - m_at});
  if (count == 0) return m_failsAtEnd ? -1 : 0;
  const qint64 body = m_piece.size() * m_times;
  for (qint64 i = 0; i < count; ++i, ++m_at) {
    data[i] = m_at < body ? m_piece.at(m_at % m_piece.size()) : m_tail.at(m_at - body);
  }
  return count;
}

}  // namespace quill::test
