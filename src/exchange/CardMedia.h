// Bytes in a property of a card: pictures, sounds and keys.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "exchange/CardProperty.h"

namespace quill {

inline constexpr QStringView kUnknownMedia = u"application/octet-stream";

// Bytes whose kind the TYPE says before 4.0 and the media type of the "data:" URI in 4.0.
struct CardMedia {
  QByteArray Base64;
  QString MediaType;  // kUnknownMedia when the property does not say it
};

// How the media types of the property begin, such as "image/"; empty where any may stand.
QStringView MediaOf(const CardProperty& property);

// Nothing when the property holds no bytes.
std::optional<CardMedia> MediaIn(const CardProperty& property);

}  // namespace quill
