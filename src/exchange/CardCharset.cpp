#include "exchange/CardCharset.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace quill {

namespace {

struct CharsetName {
  const char* Declared;
  const char* Decoder;
};

// ICU's own "EUC-KR" and "CP949" decode the extended Hangul of Korean Windows wrongly, "EUC-KR"
// even without an error; the Windows sets contain the others and are what writers mean.
constexpr std::array kCharsetNames{
    CharsetName{"EUC-KR", "windows-949"},
    CharsetName{"EUCKR", "windows-949"},
    CharsetName{"KS_C_5601-1987", "windows-949"},
    CharsetName{"KSC5601", "windows-949"},
    CharsetName{"CP949", "windows-949"},
    CharsetName{"MS949", "windows-949"},
    CharsetName{"UHC", "windows-949"},
    CharsetName{"SHIFT_JIS", "windows-31j"},
    CharsetName{"SHIFT-JIS", "windows-31j"},
    CharsetName{"SJIS", "windows-31j"},
    CharsetName{"X-SJIS", "windows-31j"},
    CharsetName{"CP932", "windows-31j"},
    CharsetName{"GB2312", "GB18030"},
    CharsetName{"GBK", "GB18030"},
    CharsetName{"ISO-8859-1", "windows-1252"},
    CharsetName{"LATIN1", "windows-1252"},
    CharsetName{"US-ASCII", "windows-1252"},
    CharsetName{"ASCII", "windows-1252"},
};

// Without it a character that is cut at the end would vanish, waiting for its rest.
constexpr auto kWholeText = QStringConverter::Flag::Stateless;

QByteArray DecoderName(const QByteArray& declared) {
  const auto same = [&declared](const CharsetName& name) {
    return declared.compare(name.Declared, Qt::CaseInsensitive) == 0;
  };
  const auto found = std::find_if(kCharsetNames.begin(), kCharsetNames.end(), same);
  return found == kCharsetNames.end() ? declared : QByteArray(found->Decoder);
}

bool IsAscii(QByteArrayView bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
}

}  // namespace

QByteArray FallbackCharset(const QLocale& locale) {
  switch (locale.language()) {
    case QLocale::Korean:
      return "windows-949";
    case QLocale::Japanese:
      return "windows-31j";
    case QLocale::Chinese:
      return locale.script() == QLocale::TraditionalChineseScript ? "Big5" : "GB18030";
    case QLocale::Russian:
    case QLocale::Ukrainian:
    case QLocale::Bulgarian:
      return "windows-1251";
    case QLocale::Greek:
      return "windows-1253";
    case QLocale::Hebrew:
      return "windows-1255";
    default:
      return "windows-1252";
  }
}

bool IsKnownCharset(const QByteArray& name) {
  constexpr char kAscii[] = "BEGIN:VCARD";
  QStringDecoder decoder(DecoderName(name).constData(), kWholeText);
  return decoder.isValid() && QString(decoder(kAscii)) == QLatin1String(kAscii);
}

std::optional<QString> DecodeCertain(QByteArrayView bytes, const QByteArray& declared) {
  if (!declared.isEmpty()) {
    QStringDecoder decoder(DecoderName(declared).constData(), kWholeText);
    if (decoder.isValid()) return QString(decoder(bytes));
  }
  if (IsAscii(bytes)) return QString::fromLatin1(bytes);
  if (bytes.isValidUtf8()) return QString::fromUtf8(bytes);
  return std::nullopt;
}

QString DecodeText(QByteArrayView bytes, const QByteArray& declared, const QByteArray& fallback) {
  if (auto text = DecodeCertain(bytes, declared)) return *std::move(text);
  QStringDecoder decoder(DecoderName(fallback).constData(), kWholeText);
  return decoder.isValid() ? QString(decoder(bytes)) : QString::fromLatin1(bytes);
}

}  // namespace quill
