// How everything looks: style, palette and font, the same on every desktop and at every scale.
#pragma once

#include <QFont>
#include <QString>

class QApplication;

namespace quill {

// Called once for each QApplication, before any window is made.
void SetUpLook(QApplication& application);

// The application's font, chosen once by SetUpLook: Tahoma at 12 pixels, or the nearest to it.
QFont NormalFont();
QFont BoldFont();

}  // namespace quill
