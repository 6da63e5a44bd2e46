// The name of a window's class as the protocol writes it: "MainFrame" for quill::CMainFrame.
#pragma once

#include <QString>

class QObject;

namespace quill::driver {

QString ClassName(const QObject& object);

}  // namespace quill::driver
