#include "app/CardFileImport.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

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

TEST(CardFileImport, ReadsNoPipeWhereOnlyFilesAreMeant) {
  const QTemporaryDir folder;
  const Places places = HomePlaces(folder.path(), {});
  ASSERT_EQ(MakeFolders(places), QString());
  const QString pipe = folder.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
  QFile card(folder.filePath(QStringLiteral("card.vcf")));
  ASSERT_TRUE(card.open(QIODevice::WriteOnly));
  card.write("BEGIN:VCARD\nN:Kim\nEND:VCARD\n");
  card.close();
  const ImportTask task{.Where = places,
                        .Arguments = {pipe, card.fileName()},
                        .Options = {},
                        .Sources = ImportSources::PlainFiles};
  test::TextConsole console;
  EXPECT_EQ(ImportFiles(task, console.Target()), kExitFailed);
  EXPECT_EQ(console.Err(), "quill: " + pipe.toStdString() + ": not a file\n");
  EXPECT_NE(console.Out().find(": 1 new, "), std::string::npos) << console.Out();
}

}  // namespace
}  // namespace quill
