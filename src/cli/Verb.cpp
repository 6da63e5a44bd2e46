#include "cli/Verb.h"

#include <algorithm>
#include <array>
#include <limits>

#include "cli/CheckVerb.h"
#include "cli/ImportVerb.h"
#include "cli/ListVerb.h"

namespace quill {
namespace {

constexpr int kAny = std::numeric_limits<int>::max();
constexpr auto kVerbs = std::to_array<Verb>({
    {u"check", u"[--json]", u"look the store over and mend its index", 0, 0, VerbOutput::TextOrJson,
     RunCheck},
    {u"import", u"FILE...", u"bring in the contacts of vCard files", 1, kAny, VerbOutput::Text,
     RunImport},
    {u"list", u"[--json]", u"print the contacts' names, one on a line", 0, 0,
     VerbOutput::TextOrJson, RunList},
});

}  // namespace

std::span<const Verb> Verbs() { return kVerbs; }

const Verb* FindVerb(const QString& name) {
  const auto found = std::find_if(kVerbs.begin(), kVerbs.end(),
                                  [&name](const Verb& verb) { return verb.Name == name; });
  return found == kVerbs.end() ? nullptr : &*found;
}

}  // namespace quill
