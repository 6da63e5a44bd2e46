// The commands without a window: one table row each. A file that is named like one is written with
// its folder, ./import.
#pragma once

#include <QMap>
#include <QStringList>
#include <QStringView>

#include <span>

#include "app/Console.h"
#include "app/Places.h"

namespace quill {

struct Option {
  QStringView Name;   // "--json"
  QStringView Value;  // as the help shows it; empty: takes none; "a|b": takes these words alone
  QStringView Help;   // one line
};

struct VerbCall {
  Places Where;                         // its folders exist
  QStringList Arguments;                // at least as many as the verb needs
  QMap<QString, QString> Options = {};  // those that were given; empty where they take no value
};

struct Verb {
  QStringView Name;
  QStringView Arguments;  // as the help shows them
  QStringView Help;       // one line
  int Least;              // arguments
  int Most;
  std::span<const Option> Options;                           // of its own
  int (*Run)(const VerbCall& call, const Console& console);  // returns the exit code
};

std::span<const Verb> Verbs();
// Null when there is none of this name.
const Verb* FindVerb(const QString& name);
// Null when the verb has no such option.
const Option* FindOption(const Verb& verb, const QString& name);

// Under which the verbs' rows and the verbs themselves know their options.
inline constexpr QStringView kJsonOption = u"--json";
inline constexpr QStringView kVersionOption = u"--vcard";
inline constexpr QStringView kCategoryOption = u"--category";
inline constexpr QStringView kContactOption = u"--contact";

bool IsGiven(const VerbCall& call, QStringView option);
// Empty when it was not given.
QString ValueOf(const VerbCall& call, QStringView option);

}  // namespace quill
