// The character sets that a user may choose from for a file that does not say its own.
#pragma once

#include <QStringView>

#include <array>

namespace quill {

struct CharsetChoice {
  const char* Name;  // as an import takes it
  QStringView Title;
};

// Every fallback of a locale (FallbackCharset) is among them.
inline constexpr std::array kCharsetChoices = {
    CharsetChoice{"windows-949", u"Korean (windows-949)"},
    CharsetChoice{"windows-1252", u"Western (windows-1252)"},
    CharsetChoice{"windows-1250", u"Central European (windows-1250)"},
    CharsetChoice{"windows-1251", u"Cyrillic (windows-1251)"},
    CharsetChoice{"KOI8-R", u"Cyrillic (KOI8-R)"},
    CharsetChoice{"windows-1253", u"Greek (windows-1253)"},
    CharsetChoice{"windows-1254", u"Turkish (windows-1254)"},
    CharsetChoice{"windows-1257", u"Baltic (windows-1257)"},
    CharsetChoice{"windows-1255", u"Hebrew (windows-1255)"},
    CharsetChoice{"windows-1256", u"Arabic (windows-1256)"},
    CharsetChoice{"windows-31j", u"Japanese (Shift_JIS)"},
    CharsetChoice{"GB18030", u"Chinese, simplified (GB18030)"},
    CharsetChoice{"Big5", u"Chinese, traditional (Big5)"},
};

}  // namespace quill
