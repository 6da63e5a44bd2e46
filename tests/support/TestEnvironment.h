// What Qt wants from the environment of a test program, where it is unset: the offscreen platform
// and a runtime folder of its own. Construct before the application object; the folder goes with
// it.
#pragma once

#include <QTemporaryDir>

#include <optional>

namespace quill::test {

class TestEnvironment {
 public:
  TestEnvironment();

 private:
  std::optional<QTemporaryDir> m_runtimeFolder;
};

}  // namespace quill::test
