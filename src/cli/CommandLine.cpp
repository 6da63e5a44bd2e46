#include "cli/CommandLine.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/Shortcuts.h"

namespace quill {
namespace {

// An option puts its value (empty when it takes none) into the line; false when it makes no sense.
struct ProgramOption {
  Option Shown;
  bool (*Apply)(CommandLine& line, const QString& value);
};

bool ApplyHome(CommandLine& line, const QString& value) {
  line.Home = value;
  return !value.isEmpty();
}

bool ApplyScale(CommandLine& line, const QString& value) {
  line.AskedScale = ParseScale(value);
  return line.AskedScale.has_value();
}

bool ApplyDemo(CommandLine& line, const QString&) { return line.Demo = true; }

bool ApplyShow(CommandLine& line, const QString& value) {
  line.FirstRequest = Request{RequestKind::Show, value, {}};
  return !value.isEmpty();
}

bool ApplyNew(CommandLine& line, const QString& value) {
  line.FirstRequest = Request{RequestKind::New, value, {}};
  return !value.isEmpty();
}

bool ApplyVersion(CommandLine& line, const QString&) {
  line.Kind = CommandKind::Version;
  return true;
}

bool ApplyHelp(CommandLine& line, const QString&) {
  line.Kind = CommandKind::Help;
  return true;
}

constexpr auto kOptions = std::to_array<ProgramOption>({
    {{u"--home", u"DIR", u"keep everything in this folder"}, ApplyHome},
    {{u"--demo", u"", u"use a separate home with sample people"}, ApplyDemo},
    {{u"--scale", u"N", u"size of the window, 1 to 8 in steps of 0.25"}, ApplyScale},
    {{u"--show", u"NAME", u"show this contact in the window"}, ApplyShow},
    {{u"--new", u"TEXT", u"begin a new contact in the window"}, ApplyNew},
    {{u"--version", u"", u"print the version"}, ApplyVersion},
    {{u"--help", u"", u"print this, as do -h and the command help"}, ApplyHelp},
});

constexpr QStringView kOptionSign = u"--";
constexpr QStringView kShortHelp = u"-h";
constexpr QStringView kHelpWord = u"help";  // not a verb: with one behind it tells of that one
constexpr QStringView kLongHelp = u"--help";

const ProgramOption* FindProgramOption(const QString& word) {
  const QStringView name = word == kShortHelp ? kLongHelp : QStringView(word);
  const auto found =
      std::find_if(kOptions.begin(), kOptions.end(),
                   [&name](const ProgramOption& option) { return option.Shown.Name == name; });
  return found == kOptions.end() ? nullptr : &*found;
}

// Of whatever verb: an option may stand before its verb. What two verbs call alike looks alike.
const Option* FindVerbOption(const QString& name) {
  for (const Verb& verb : Verbs()) {
    if (const Option* option = FindOption(verb, name)) return option;
  }
  return nullptr;
}

bool ApplyVerbOption(const Option& option, const QString& value, CommandLine& line) {
  if (option.Value.contains(u'|') && !option.Value.split(u'|').contains(value)) return false;
  line.VerbOptions.insert(option.Name.toString(), value);
  return true;
}

// Takes the value of an option: behind its equals sign, else the next word, which then is more
// likely an option whose predecessor lacks its value when it looks like one. Returns what is wrong.
QString TakeValue(QStringList& words, const Option& option, std::optional<QString>& value) {
  if (option.Value.isEmpty())
    return value ? QStringLiteral("%1 takes no value").arg(option.Name) : QString();
  if (value) return {};
  if (words.isEmpty() || words.first().startsWith(kOptionSign))
    return QStringLiteral("%1 needs a value").arg(option.Name);
  value = words.takeFirst();
  return {};
}

// Takes the option at the front of the words, with its value. Returns what is wrong with it.
QString TakeOption(QStringList& words, CommandLine& line) {
  const QString word = words.takeFirst();
  const qsizetype equals = word.indexOf(u'=');
  const QString name = word.left(equals);
  const ProgramOption* ofProgram = FindProgramOption(name);
  const Option* option = ofProgram ? &ofProgram->Shown : FindVerbOption(name);
  if (!option) return QStringLiteral("unknown option %1").arg(name);
  std::optional<QString> value;
  if (equals >= 0) value = word.mid(equals + 1);
  const QString problem = TakeValue(words, *option, value);
  if (!problem.isEmpty()) return problem;
  const bool applied = ofProgram ? ofProgram->Apply(line, value.value_or(QString()))
                                 : ApplyVerbOption(*option, value.value_or(QString()), line);
  if (applied) return {};
  return QStringLiteral("%1 does not understand \"%2\"").arg(name, value.value_or(QString()));
}

void TakeWord(const QString& word, CommandLine& line) {
  const bool isFirst = !line.Called && line.Arguments.isEmpty();
  if (isFirst && word == kHelpWord) {
    line.Kind = CommandKind::Help;
    return;
  }
  const Verb* verb = isFirst ? FindVerb(word) : nullptr;
  if (verb) {
    line.Called = verb;
  } else {
    line.Arguments.append(word);
  }
}

QString VerbProblem(const CommandLine& line) {
  const Verb& verb = *line.Called;
  const qsizetype count = line.Arguments.size();
  if (count < verb.Least) return QStringLiteral("%1 needs %2").arg(verb.Name).arg(verb.Arguments);
  if (count > verb.Most)
    return QStringLiteral("%1 does not take \"%2\"")
        .arg(verb.Name)
        .arg(line.Arguments.at(verb.Most));
  for (const QString& option : line.VerbOptions.keys()) {
    if (!FindOption(verb, option))
      return QStringLiteral("%1 does not know %2").arg(verb.Name).arg(option);
  }
  if (line.FirstRequest)
    return QStringLiteral("--show and --new are for the window, not for %1").arg(verb.Name);
  return {};
}

QString WindowProblem(const CommandLine& line) {
  if (!line.VerbOptions.isEmpty())
    return QStringLiteral("%1 is for commands").arg(line.VerbOptions.firstKey());
  if (line.FirstRequest && !line.Arguments.isEmpty())
    return QStringLiteral("--show and --new do not go with files");
  return {};
}

CommandLine Wrong(const QString& problem) {
  CommandLine line;
  line.Kind = CommandKind::Wrong;
  line.Problem = problem;
  return line;
}

struct HelpRow {
  QString Subject;
  QStringView Help;
};

HelpRow RowOf(const Option& option) {
  return {option.Name.toString() + u' ' + option.Value.toString(), option.Help};
}

QString HelpLines(const QString& heading, const std::vector<HelpRow>& rows) {
  qsizetype width = 0;
  for (const HelpRow& row : rows) width = std::max(width, row.Subject.size());
  QString text = u'\n' + heading + u'\n';
  for (const HelpRow& row : rows) {
    text += QStringLiteral("  %1 %2\n").arg(row.Subject, -static_cast<int>(width)).arg(row.Help);
  }
  return text;
}

QString VerbHelp(const Verb& verb) {
  QString usage = QStringLiteral("quill %1 %2").arg(verb.Name).arg(verb.Arguments).trimmed();
  if (!verb.Options.empty()) usage += QStringLiteral(" [OPTION...]");
  QString text = QStringLiteral("%1\n%2\n").arg(usage).arg(verb.Help);
  if (verb.Options.empty()) return text;
  std::vector<HelpRow> rows;
  rows.reserve(verb.Options.size());
  for (const Option& option : verb.Options) rows.push_back(RowOf(option));
  return text + HelpLines(QStringLiteral("Options:"), rows);
}

QString ShortcutHelp() {
  QString text = QStringLiteral("\nKeys of the window:\n");
  std::vector<HelpRow> rows;
  for (const Shortcut& shortcut : Shortcuts()) {
    if (&shortcut != Shortcuts().data() && shortcut.Place != (&shortcut - 1)->Place) {
      text += HelpLines(NameOf((&shortcut - 1)->Place).toString() + u':', rows);
      rows.clear();
    }
    rows.push_back({shortcut.Keys.toString(), shortcut.Does});
  }
  return text + HelpLines(NameOf(Shortcuts().back().Place).toString() + u':', rows);
}

}  // namespace

CommandLine ParseCommandLine(const QStringList& words) {
  CommandLine line;
  QStringList rest = words;
  while (!rest.isEmpty()) {
    if (rest.first() == QLatin1String("--")) {
      line.Arguments.append(rest.mid(1));
      break;
    }
    if (rest.first().startsWith(u'-') && rest.first().size() > 1) {
      const QString problem = TakeOption(rest, line);
      if (!problem.isEmpty()) return Wrong(problem);
    } else {
      TakeWord(rest.takeFirst(), line);
    }
  }
  if (line.Kind != CommandKind::Window) return line;  // help and version go before all else
  if (line.Called) line.Kind = CommandKind::RunVerb;
  const QString problem = line.Called ? VerbProblem(line) : WindowProblem(line);
  return problem.isEmpty() ? line : Wrong(problem);
}

QString HelpText(const Verb* verb) {
  if (verb) return VerbHelp(*verb);
  std::vector<HelpRow> verbs;
  verbs.reserve(Verbs().size());
  for (const Verb& each : Verbs())
    verbs.push_back({each.Name.toString() + u' ' + each.Arguments.toString(), each.Help});
  std::vector<HelpRow> options;
  options.reserve(kOptions.size());
  for (const ProgramOption& option : kOptions) options.push_back(RowOf(option.Shown));
  return QStringLiteral(
             "quill [FILE...]      open the window, with the contacts of these files brought in;\n"
             "                     of memos (.pwi) it opens the editor\n"
             "quill COMMAND ...    do something without a window\n") +
         HelpLines(QStringLiteral("Commands (quill COMMAND --help tells more):"), verbs) +
         HelpLines(QStringLiteral("Options:"), options) + ShortcutHelp();
}

}  // namespace quill
