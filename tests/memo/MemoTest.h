// A fixture with memo files in a home of their own.
#pragma once

#include <gtest/gtest.h>

#include "memo/MemoFolder.h"
#include "memo/MemoState.h"
#include "support/DeviceHome.h"

namespace quill::test {

class MemoTest : public testing::Test {
 protected:
  ~MemoTest() override { g_services = {}; }

  void Put(const QString& name) {
    ASSERT_TRUE(m_files.WriteWhole(MemoPath(m_memo, name), "ink")) << name.toStdString();
  }

  DeviceHome m_home;
  DeviceFiles& m_files = m_home.Files;
  MemoState m_memo;
};

}  // namespace quill::test
