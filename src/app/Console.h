// Where a command writes, and the exit codes that it ends with.
#pragma once

#include <QTextStream>

namespace quill {

struct Console {
  QTextStream& Out;         // results
  QTextStream& Err;         // messages
  bool IsTerminal = false;  // somebody watches Err: long work may show how far it is
};

inline constexpr int kExitDone = 0;
inline constexpr int kExitPartly = 1;  // nothing found, or not everything done
inline constexpr int kExitFailed = 2;  // wrong use, or failure

// A message with the program's name before it.
inline void Complain(const Console& console, const QString& message) {
  console.Err << "quill: " << message << Qt::endl;
}

// The same, as what ends the command.
inline int Fail(const Console& console, const QString& message) {
  Complain(console, message);
  return kExitFailed;
}

}  // namespace quill
