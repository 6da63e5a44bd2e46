// The commands without a window: one table row each. A file that is named like one is written with
// its folder, ./import.
#pragma once

#include <QStringList>
#include <QStringView>

#include <span>

#include "app/Places.h"
#include "cli/Console.h"

namespace quill {

struct VerbCall {
  Places Where;           // its folders exist
  QStringList Arguments;  // at least as many as the verb needs
  bool AsJson = false;
};

enum class VerbOutput { Text, TextOrJson };  // whether it knows --json

struct Verb {
  QStringView Name;
  QStringView Arguments;  // as the help shows them
  QStringView Help;       // one line
  int Least;              // arguments
  int Most;
  VerbOutput Output;
  int (*Run)(const VerbCall& call, const Console& console);  // returns the exit code
};

std::span<const Verb> Verbs();
// Null when there is none of this name.
const Verb* FindVerb(const QString& name);

}  // namespace quill
