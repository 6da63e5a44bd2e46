#include "support/TestEnvironment.h"

namespace quill::test {

TestEnvironment::TestEnvironment() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) return;
  m_runtimeFolder.emplace();
  qputenv("XDG_RUNTIME_DIR", m_runtimeFolder->path().toLocal8Bit());
}

}  // namespace quill::test
