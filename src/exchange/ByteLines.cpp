#include "exchange/ByteLines.h"

#include <algorithm>

namespace quill {

namespace {

constexpr qint64 kBlock = 64 * 1024;
constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

}  // namespace

bool ByteLines::Next(ByteLine& line) {
  line.Bytes.resize(0);
  line.Raw.resize(0);
  line.IsCut = false;
  if (m_position == m_block.size() && !Fill()) return false;
  line.Number = ++m_lines;
  do {
    const auto end = std::find_if(m_block.cbegin() + m_position, m_block.cend(), IsLineEnd);
    const qsizetype stop = end - m_block.cbegin();
    Append(line, stop);
    m_position = stop;
  } while (m_position == m_block.size() && Fill());
  SkipLineEnd(line);
  if (line.Bytes.contains('\0')) line.Bytes.replace('\0', QByteArrayView());
  // Files put together from others carry a mark in front of every part.
  if (line.Bytes.startsWith(kUtf8Mark)) line.Bytes.remove(0, sizeof kUtf8Mark - 1);
  return true;
}

void ByteLines::Append(ByteLine& line, qsizetype end) const {
  const qsizetype room = kMaxLine - line.Bytes.size();
  const qsizetype count = end - m_position;
  line.Bytes.append(m_block.constData() + m_position, std::min(count, room));
  if (m_raw == RawBytes::Kept) {
    line.Raw.append(m_block.constData() + m_position, std::min(count, room));
  }
  line.IsCut = line.IsCut || count > room;
}

void ByteLines::SkipLineEnd(ByteLine& line) {
  if (m_position == m_block.size()) return;
  const bool isCarriageReturn = m_block.at(m_position) == '\r';
  TakeEndCharacter(line);
  if (!isCarriageReturn) return;
  if (m_position == m_block.size() && !Fill()) return;
  if (m_block.at(m_position) == '\n') TakeEndCharacter(line);
}

void ByteLines::TakeEndCharacter(ByteLine& line) {
  if (m_raw == RawBytes::Kept) line.Raw += m_block.at(m_position);
  ++m_position;
}

bool ByteLines::Fill() {
  const bool isBeginning = m_bytesRead == 0;
  m_position = 0;
  m_block = ReadBlock();
  if (isBeginning) {
    // The kind of the file shows in two bytes; a pipe may give fewer at first.
    while (m_block.size() == 1) {
      const QByteArray more = ReadBlock();
      if (more.isEmpty()) break;
      m_block += more;
    }
    DetectWide(m_block);
  }
  if (!m_wide || m_block.isEmpty()) return !m_block.isEmpty();
  m_block = m_toUtf8(QString((*m_wide)(m_block)));
  // A block that held only half a character decodes to nothing and is not the end.
  return m_block.isEmpty() ? Fill() : true;
}

QByteArray ByteLines::ReadBlock() {
  QByteArray block(kBlock, Qt::Uninitialized);
  qint64 count = m_device.read(block.data(), kBlock);
  while (count == 0 && !m_device.atEnd() && m_device.waitForReadyRead(-1)) {
    count = m_device.read(block.data(), kBlock);
  }
  // A sequential device also answers -1 at its end, without an error text of its own.
  if (count < 0) m_hasFailed = !m_device.isSequential();
  block.truncate(std::max<qint64>(count, 0));
  m_bytesRead += block.size();
  return block;
}

void ByteLines::DetectWide(const QByteArray& beginning) {
  if (beginning.size() < 2) return;
  const auto first = static_cast<uchar>(beginning.at(0));
  const auto second = static_cast<uchar>(beginning.at(1));
  const bool isLittle = (first == 0xFF && second == 0xFE) || (first != 0 && second == 0);
  const bool isBig = (first == 0xFE && second == 0xFF) || (first == 0 && second != 0);
  if (isLittle) m_wide.emplace(QStringDecoder::Utf16LE);
  if (isBig) m_wide.emplace(QStringDecoder::Utf16BE);
}

}  // namespace quill
