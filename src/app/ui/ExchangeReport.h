// What an import or an export has to tell, as a message box shows it.
#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

#include "app/Console.h"

namespace quill {

class ExchangeReport {
 public:
  // Where the work writes to.
  const Console& Target() const { return m_console; }

  // The results and the first of the messages, the rest counted, each a sentence in a line of its
  // own, without the folders of the files that were named. Waits for the user.
  void Show(int exitCode, const QStringList& files);

 private:
  QString m_results;
  QString m_messages;
  QTextStream m_out{&m_results};
  QTextStream m_err{&m_messages};
  const Console m_console{m_out, m_err};
};

}  // namespace quill
