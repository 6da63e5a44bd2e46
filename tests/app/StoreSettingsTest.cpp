#include "app/StoreSettings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/JsonRegistry.h"

namespace quill {
namespace {

class StoreSettingsIn : public testing::Test {
 protected:
  qsizetype InkLimit() const { return ReadStoreSettings(m_registry).AppointmentInkLimit; }
  void PutInkLimit(quint32 bytes) {
    ASSERT_TRUE(m_registry.PutNumber(u"\\Software\\Fennick\\Quill\\Store"_qs,
                                     u"AppointmentInkLimit"_qs, bytes));
  }

  QTemporaryDir m_folder;
  JsonRegistry m_registry{m_folder.filePath(u"settings.json"_qs)};
};

TEST_F(StoreSettingsIn, AnEmptyRegistryAreTheDefaults) { EXPECT_EQ(InkLimit(), 64 * 1024); }

TEST_F(StoreSettingsIn, TheRegistryIsTheInkLimit) {
  for (const quint32 bytes : {0U, 1U, 200'000U, 4294967295U}) {
    PutInkLimit(bytes);
    EXPECT_EQ(InkLimit(), qsizetype{bytes});
  }
}

}  // namespace
}  // namespace quill
