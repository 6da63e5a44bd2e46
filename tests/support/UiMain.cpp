// Runs the tests of a room of windows.
#include <QApplication>

#include <gmock/gmock.h>

#include "support/TestEnvironment.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const quill::test::TestEnvironment environment;
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
