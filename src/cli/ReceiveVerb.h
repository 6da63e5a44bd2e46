// quill receive: contacts that other devices push into the store.
#pragma once

#include "cli/Verb.h"

namespace quill {

// Of the verb's row.
inline constexpr QStringView kLanOption = u"--lan";
inline constexpr QStringView kPortOption = u"--port";
inline constexpr QStringView kTrustOption = u"--trust";
inline constexpr QStringView kCountOption = u"--count";
inline constexpr QStringView kSaveOption = u"--save";

// Waits for two minutes, prints what comes, and asks on the terminal before it takes a card. What
// is not asked for is as the settings say; without --save they stay as they are. Fails when it
// cannot listen; when nothing came it is kExitPartly.
int RunReceive(const VerbCall& call, const Console& console);

}  // namespace quill
