#include "app/CardFileImport.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app/TextConsole.h"

namespace quill {
namespace {

TEST(CardFileImport, StopsWithAllFilesWhenItIsTold) {
  const QTemporaryDir folder;
  const Places places = HomePlaces(folder.path(), {});
  ASSERT_EQ(MakeFolders(places), QString());
  QFile many(folder.filePath(QStringLiteral("many.vcf")));
  ASSERT_TRUE(many.open(QIODevice::WriteOnly));
  for (int i = 0; i < 120; ++i)
    many.write("BEGIN:VCARD\nN:" + QByteArray::number(i) + "\nEND:VCARD\n");
  many.close();
  ImportTask task{.Where = places, .Arguments = {many.fileName(), many.fileName()}, .Options = {}};
  int asked = 0;
  task.Continue = [&](const QString& file, const ImportProgress& progress) {
    ++asked;
    EXPECT_EQ(file, many.fileName());
    return progress.Cards < 100;
  };
  test::TextConsole console;
  EXPECT_EQ(ImportFiles(task, console.Target()), kExitPartly);
  const std::string name = many.fileName().toStdString();
  EXPECT_EQ(console.Out(), name + ": 100 new, 0 changed, 0 the same, 0 unreadable\n");
  EXPECT_EQ(console.Err(), "quill: " + name + ": stopped; what came in until then stays\n");
  EXPECT_GT(asked, 0);
}

}  // namespace
}  // namespace quill
