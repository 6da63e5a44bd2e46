#include "cli/Verb.h"

#include <algorithm>
#include <array>
#include <limits>

#include "cli/CheckVerb.h"
#include "cli/ExportVerb.h"
#include "cli/ImportVerb.h"
#include "cli/ListVerb.h"
#include "cli/ReceiveVerb.h"
#include "cli/ShowVerb.h"

namespace quill {
namespace {

constexpr int kAny = std::numeric_limits<int>::max();
constexpr auto kPrinting = std::to_array<Option>({
    {kJsonOption, u"", u"print JSON"},
});
constexpr auto kExporting = std::to_array<Option>({
    {kVersionOption, u"2.1|3.0|4.0", u"the version of the cards, 3.0 when not given"},
    {kCategoryOption, u"NAME", u"only the contacts of this category"},
    {kContactOption, u"NAME", u"only the contacts of this name, or whose name begins so"},
});
constexpr auto kImporting = std::to_array<Option>({
    {kDuplicateOption, u"merge|add|skip", u"a card whose person is there: merge unless told"},
    {kCharsetOption, u"NAME", u"of text that does not say its character set"},
    {kRejectsOption, u"FILE", u"keep the cards that cannot be read in this file"},
});
constexpr auto kReceiving = std::to_array<Option>({
    {kLanOption, u"", u"let peers of the local network push, not of this machine alone"},
    {kPortOption, u"N", u"listen on this port; 0 for any that is free"},
    {kTrustOption, u"ADDRESS", u"take what this peer pushes without asking"},
    {kCountOption, u"N", u"end after so many cards, not after two minutes"},
    {kSaveOption, u"", u"receive so from now on, in the window too"},
});
constexpr auto kVerbs = std::to_array<Verb>({
    {u"check", u"", u"look the store over and mend its index", 0, 0, kPrinting, RunCheck},
    {u"export", u"FILE", u"write contacts to a vCard file, - for standard output", 1, 1, kExporting,
     RunExport},
    {u"import", u"FILE|DIR...", u"bring in the contacts of vCard files", 1, kAny, kImporting,
     RunImport},
    {u"list", u"", u"print the contacts' names, one on a line", 0, 0, kPrinting, RunList},
    {u"receive", u"", u"take the cards that are pushed here in the next two minutes", 0, 0,
     kReceiving, RunReceive},
    {u"show", u"NAME", u"print the contacts of this name, or whose name begins so", 1, 1, kPrinting,
     RunShow},
});

template <typename Rows>
auto FindNamed(const Rows& rows, const QString& name) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&name](const auto& row) { return row.Name == name; });
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace

std::span<const Verb> Verbs() { return kVerbs; }

const Verb* FindVerb(const QString& name) { return FindNamed(kVerbs, name); }

const Option* FindOption(const Verb& verb, const QString& name) {
  return FindNamed(verb.Options, name);
}

bool IsGiven(const VerbCall& call, QStringView option) {
  return call.Options.contains(option.toString());
}

QString ValueOf(const VerbCall& call, QStringView option) {
  return call.Options.value(option.toString());
}

}  // namespace quill
