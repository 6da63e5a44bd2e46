// The driver's command line.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include "driver/FaultTable.h"
#include "platform/Scale.h"

namespace quill::driver {

struct NamedFault {
  QString Name;
  Fault What;
};

// What carries contacts: nothing but a script, or the program's own way to other devices.
enum class InfraredChoice { Scripted, Real };

struct Options {
  QString Home;  // empty: a fresh temporary one
  std::optional<QDateTime> Now;
  quill::Scale Scale{4};
  std::vector<NamedFault> Faults;
  InfraredChoice Infrared = InfraredChoice::Scripted;
};

struct ParsedOptions {
  driver::Options Options;
  QString Problem;        // empty: none
  bool AsksHelp = false;  // all behind it is left unread
};

// arguments: without the program's own name.
ParsedOptions ParseOptions(const QStringList& arguments);

// What --help prints, lines ended by line feeds.
QString OptionsHelp();

}  // namespace quill::driver
