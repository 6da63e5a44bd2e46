// The sounds that the device has.
#pragma once

#include <QStringList>

namespace quill {

inline constexpr QStringView kSoundFolder = u"\\Windows";
inline constexpr QStringView kSoundOff = u"Sound off";  // what stands for no sound

// The names of the files in "\Windows\" with one of these extensions (such as "wav"), sorted
// without case among all of them; empty when the folder cannot be read.
QStringList SoundNames(const QStringList& extensions);
// The device path of the sound with this name.
QString SoundPath(const QString& name);

}  // namespace quill
