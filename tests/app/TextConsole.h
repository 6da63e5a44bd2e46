// A console that keeps what is written to it.
#pragma once

#include "app/Console.h"

namespace quill::test {

class TextConsole {
 public:
  const Console& Target() const { return m_console; }
  std::string Out() { return Written(m_out, m_outText); }
  std::string Err() { return Written(m_err, m_errText); }

 private:
  static std::string Written(QTextStream& stream, const QString& text) {
    stream.flush();
    return text.toStdString();
  }

  QString m_outText;
  QString m_errText;
  QTextStream m_out{&m_outText};
  QTextStream m_err{&m_errText};
  const Console m_console{m_out, m_err};
};

}  // namespace quill::test
