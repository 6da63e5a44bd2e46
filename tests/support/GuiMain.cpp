// Runs the tests of a core room that has fonts and pictures.
#include <QGuiApplication>

#include <gmock/gmock.h>

#include "support/TestEnvironment.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const quill::test::TestEnvironment environment;
  QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
