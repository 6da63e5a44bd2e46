// What the kernel says about this process's memory.
#pragma once

#include <QByteArray>
#include <QString>

namespace quill::bench {

// The line of this name of an account below /proc, such as "VmRSS" of "/proc/self/status": its
// text behind the colon, "30712 kB"; "unknown" where there is none.
QString MemoryLine(const QString& file, const QByteArray& name);

// Resident, in MB; 0 where the kernel does not say.
double ResidentMegabytes();

}  // namespace quill::bench
