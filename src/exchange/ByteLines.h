// The physical lines of a text file of unknown origin: ended by CRLF, LF or CR in any mixture, in
// UTF-8, UTF-16 or some 8-bit character set.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QStringDecoder>
#include <QStringEncoder>

#include <optional>

namespace quill {

struct ByteLine {
  QByteArray Bytes;    // without the line end, byte order mark and NUL bytes
  qint64 Number = 0;   // 1-based
  bool IsCut = false;  // longer than the limit: only the beginning is here
  QByteArray Raw;      // as it came, with its line end (UTF-16 as UTF-8); empty unless kept
};

enum class RawBytes { Dropped, Kept };

// Streams: holds one line and one block of the file. UTF-16 is told by its byte order mark or by
// its NUL bytes, and comes out as UTF-8.
class ByteLines {
 public:
  static constexpr qsizetype kMaxLine = 8 * 1024 * 1024;  // bytes

  // The device is open for reading and outlives this.
  explicit ByteLines(QIODevice& device, RawBytes raw = RawBytes::Dropped)
      : m_device(device), m_raw(raw) {}

  // False at the end of the file and when the device fails.
  bool Next(ByteLine& line);

  bool IsUnicode() const { return m_wide.has_value(); }  // known once a line was read
  bool HasFailed() const { return m_hasFailed; }
  qint64 BytesRead() const { return m_bytesRead; }

 private:
  bool Fill();
  QByteArray ReadBlock();
  void DetectWide(const QByteArray& beginning);
  void Append(ByteLine& line, qsizetype end) const;
  void SkipLineEnd(ByteLine& line);
  void TakeEndCharacter(ByteLine& line);

  QIODevice& m_device;
  RawBytes m_raw;
  std::optional<QStringDecoder> m_wide;  // set for UTF-16
  // Keeps half a surrogate pair from one block to the next.
  QStringEncoder m_toUtf8{QStringEncoder::Utf8};
  QByteArray m_block;
  qsizetype m_position = 0;  // in m_block
  qint64 m_lines = 0;
  qint64 m_bytesRead = 0;
  bool m_hasFailed = false;
};

}  // namespace quill
