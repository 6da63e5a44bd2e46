// The command line taken apart. Options may stand before and behind the first word, as "--home DIR"
// or "--home=DIR", the only way for a value that begins with "--"; behind "--" every
// word is a file.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

#include "app/Request.h"
#include "cli/Verb.h"
#include "platform/Scale.h"

namespace quill {

enum class CommandKind {
  Window,   // open the window, or hand over to the one that is open
  RunVerb,  // Called says which
  Help,     // of Called, or of the program when that is null
  Version,
  Wrong,  // Problem says why
};

struct CommandLine {
  CommandKind Kind = CommandKind::Window;
  QString Problem;  // text for the user
  const Verb* Called = nullptr;
  QStringList Arguments;  // the verb's, or the files to bring in before the window shows
  std::optional<QString> Home;
  std::optional<Scale> AskedScale;
  std::optional<Request> FirstRequest;
  QMap<QString, QString> VerbOptions;  // those that were given; empty where they take no value
  bool Demo = false;
};

// The words without the program's name.
CommandLine ParseCommandLine(const QStringList& words);

// The help text, with a line feed at its end.
QString HelpText(const Verb* verb);

}  // namespace quill
