#include "driver/Options.h"

#include <array>
#include <utility>

namespace quill::driver {

namespace {

constexpr QStringView kHelpOption = u"--help";

// Each takes an option's value; false when it is not one.
bool TakeHome(const QString& value, Options& options) {
  options.Home = value;
  return !value.isEmpty();
}

bool TakeNow(const QString& value, Options& options) {
  options.Now = QDateTime::fromString(value, Qt::ISODate);
  return options.Now->isValid();
}

bool TakeScale(const QString& value, Options& options) {
  const std::optional<Scale> scale = ParseScale(value);
  options.Scale = scale.value_or(options.Scale);
  return scale.has_value();
}

bool TakeFault(const QString& value, Options& options) {
  const QString name = value.section(u':', 0, 0);
  NamedFault fault{name, {}};
  bool hasCode = true;
  if (value.contains(u':')) fault.What.Code = value.section(u':', 1).toInt(&hasCode);
  options.Faults.push_back(fault);
  return hasCode && FaultTable::IsKnown(name);
}

bool TakeInfrared(const QString& value, Options& options) {
  const bool isReal = value == u"obex";
  if (isReal) options.Infrared = InfraredChoice::Real;
  return isReal || value == u"script";
}

struct OptionRow {
  QStringView Name;
  QStringView Value;
  QStringView Meaning;
  bool (*Take)(const QString& value, Options& options);
};
constexpr std::array kOptions = {
    OptionRow{u"--home", u"DIR", u"where everything is kept; a temporary folder without it",
              TakeHome},
    OptionRow{u"--now", u"TIME", u"stop the clock, as at 2004-09-15T09:30:05", TakeNow},
    OptionRow{u"--scale", u"N", u"from 1 to 8 in quarters; 1 without it", TakeScale},
    OptionRow{u"--infrared", u"HOW", u"script (nothing is sent, as without it) or obex",
              TakeInfrared},
    OptionRow{u"--fault", u"NAME[:CODE]", u"let a call fail from the start; may be repeated",
              TakeFault},
};

bool TakeOption(const QString& name, const QString& value, Options& options) {
  for (const OptionRow& row : kOptions)
    if (row.Name == name) return row.Take(value, options);
  return false;
}

QString HelpLine(const OptionRow& row) {
  constexpr int nameColumn = 22;
  const QString name = row.Name.toString() + u' ' + row.Value.toString();
  return QStringLiteral("  ") + name.leftJustified(nameColumn) + u' ' + row.Meaning.toString() +
         u'\n';
}

// Broken into lines of a terminal's width.
QString FaultLines() {
  constexpr qsizetype width = 78;
  QString text;
  QString line;
  for (const QStringView name : FaultTable::Names()) {
    if (line.size() + name.size() > width) text += std::exchange(line, QString()) + u'\n';
    line += line.isEmpty() ? QStringLiteral("  ") : QStringLiteral(" ");
    line += name;
  }
  return text + line + u'\n';
}

}  // namespace

ParsedOptions ParseOptions(const QStringList& arguments) {
  ParsedOptions parsed;
  for (qsizetype i = 0; i < arguments.size(); i += 2) {
    parsed.AsksHelp = arguments[i] == kHelpOption;
    if (parsed.AsksHelp) break;
    const QString value = arguments.value(i + 1);
    if (TakeOption(arguments[i], value, parsed.Options)) continue;
    parsed.Problem = arguments[i] + u' ' + value;
    break;
  }
  return parsed;
}

QString OptionsHelp() {
  QString text = QStringLiteral("quill-driver [OPTION VALUE]...\n\n");
  for (const OptionRow& row : kOptions) text += HelpLine(row);
  text += HelpLine({kHelpOption, {}, u"print this", nullptr});
  return text + QStringLiteral("\nFaults:\n") + FaultLines();
}

}  // namespace quill::driver
