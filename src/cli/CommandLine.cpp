#include "cli/CommandLine.h"

#include <algorithm>
#include <array>

namespace quill {
namespace {

// An option puts its value (empty when it takes none) into the line; false when it makes no sense.
struct Option {
  QStringView Name;
  QStringView Value;  // as the help shows it; empty: takes none
  QStringView Help;
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

bool ApplyJson(CommandLine& line, const QString&) { return line.AsJson = true; }

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

constexpr auto kOptions = std::to_array<Option>({
    {u"--home", u"DIR", u"keep everything in this folder", ApplyHome},
    {u"--demo", u"", u"use a separate home with sample people", ApplyDemo},
    {u"--scale", u"N", u"size of the window, 1 to 8 in steps of 0.25", ApplyScale},
    {u"--show", u"NAME", u"show this contact in the window", ApplyShow},
    {u"--new", u"TEXT", u"begin a new contact in the window", ApplyNew},
    {u"--json", u"", u"print JSON, where a command prints", ApplyJson},
    {u"--version", u"", u"print the version", ApplyVersion},
    {u"--help", u"", u"print this", ApplyHelp},
});

const Option* FindOption(const QString& name) {
  const auto found = std::find_if(kOptions.begin(), kOptions.end(),
                                  [&name](const Option& option) { return option.Name == name; });
  return found == kOptions.end() ? nullptr : &*found;
}

// Takes the option at the front of the words, with its value. Returns what is wrong with it.
QString TakeOption(QStringList& words, CommandLine& line) {
  const QString word = words.takeFirst();
  const qsizetype equals = word.indexOf(u'=');
  const QString name = word.left(equals);
  const Option* option = FindOption(name);
  if (!option) return QStringLiteral("unknown option %1").arg(name);
  QString value = equals < 0 ? QString() : word.mid(equals + 1);
  if (option->Value.isEmpty()) {
    if (equals >= 0) return QStringLiteral("%1 takes no value").arg(name);
  } else if (equals < 0) {
    if (words.isEmpty()) return QStringLiteral("%1 needs a value").arg(name);
    value = words.takeFirst();
  }
  if (option->Apply(line, value)) return {};
  return QStringLiteral("%1 does not understand \"%2\"").arg(name, value);
}

void TakeWord(const QString& word, CommandLine& line) {
  const bool isFirst = !line.Called && line.Arguments.isEmpty();
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
  if (line.AsJson && verb.Output != VerbOutput::TextOrJson)
    return QStringLiteral("%1 does not know --json").arg(verb.Name);
  if (line.FirstRequest)
    return QStringLiteral("--show and --new are for the window, not for %1").arg(verb.Name);
  return {};
}

QString WindowProblem(const CommandLine& line) {
  if (line.AsJson) return QStringLiteral("--json is for commands that print");
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

QString HelpLine(const QString& subject, QStringView help) {
  return QStringLiteral("  %1 %2\n").arg(subject, -18).arg(help);
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
  if (verb)
    return QStringLiteral("quill %1 %2\n%3\n").arg(verb->Name).arg(verb->Arguments).arg(verb->Help);
  QString text = QStringLiteral(
      "quill [FILE...]      open the window, with the contacts of these files brought in\n"
      "quill COMMAND ...    do something without a window\n\nCommands:\n");
  for (const Verb& each : Verbs())
    text += HelpLine(each.Name.toString() + u' ' + each.Arguments.toString(), each.Help);
  text += QStringLiteral("\nOptions:\n");
  for (const Option& option : kOptions)
    text += HelpLine(option.Name.toString() + u' ' + option.Value.toString(), option.Help);
  return text;
}

}  // namespace quill
