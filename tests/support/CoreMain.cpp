// Runs the tests of a core room.
#include <QCoreApplication>

#include <gmock/gmock.h>

#include "support/TestEnvironment.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const quill::test::TestEnvironment environment;
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
