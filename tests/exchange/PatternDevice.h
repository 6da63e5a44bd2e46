// A device that gives a piece of text many times and then a tail, without ever holding it all, in
// reads of at most a given size. It is open from the start.
#pragma once

#include <QByteArray>
#include <QIODevice>

namespace quill::test {

class PatternDevice : public QIODevice {
 public:
  PatternDevice(QByteArray piece, qint64 times, qint64 perRead, QByteArray tail = {});

  void FailAtEnd() { m_failsAtEnd = true; }
  bool atEnd() const override { return m_at >= Length() && !m_failsAtEnd; }

 protected:
  qint64 readData(char* data, qint64 size) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  qint64 Length() const { return m_piece.size() * m_times + m_tail.size(); }

  QByteArray m_piece;
  qint64 m_times;
  qint64 m_perRead;
  QByteArray m_tail;
  qint64 m_at = 0;
  bool m_failsAtEnd = false;
};

}  // namespace quill::test
