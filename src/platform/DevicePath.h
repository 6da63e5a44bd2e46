// Device paths and file names as texts.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace quill {

// The path's parts from the root on, without empty ones. Nothing when one of them could lead
// elsewhere or stand for no file: "..", ".", "/", the character 0, half a surrogate pair.
std::optional<QStringList> DevicePathParts(const QString& path);

// Whether the device lets a file have this name: it has none of its signs for paths, patterns and
// pipes, and no control characters.
bool IsDeviceName(QStringView name);

// Compared without case, unit by unit. "*" in the pattern stands for any units, "?" for one; "[" is
// a character like others.
bool MatchesPattern(QStringView name, QStringView pattern);

}  // namespace quill
