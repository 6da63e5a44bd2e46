#include "app/CardFileExport.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app/StoreOpening.h"
#include "app/TextConsole.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

bool FillStore(const Places& places, int contacts) {
  PimStore store(places.StoreFile);
  const StoreOpening opening(store);
  for (int i = 0; i < contacts && opening.Succeeded(); ++i) {
    ContactRecord record;
    record[ContactField::FileAs] = QString::number(i);
    if (store.Contacts()->Save(0, record, {}) == 0) return false;
  }
  return opening.Succeeded();
}

TEST(CardFileExport, LeavesTheOldFileWhenItIsToldToStop) {
  const QTemporaryDir folder;
  const Places places = HomePlaces(folder.path(), {});
  ASSERT_EQ(MakeFolders(places), QString());
  ASSERT_TRUE(FillStore(places, 50));
  QFile old(folder.filePath(QStringLiteral("out.vcf")));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  ExportTask task{.Where = places, .File = old.fileName(), .Options = {}};
  task.Options.Continue = [](int done, int count) { return done < count; };
  test::TextConsole console;
  EXPECT_EQ(ExportFile(task, console.Target()), kExitPartly);
  EXPECT_EQ(console.Err(),
            "quill: " + old.fileName().toStdString() + ": stopped; nothing was written\n");
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), "old");
}

}  // namespace
}  // namespace quill
