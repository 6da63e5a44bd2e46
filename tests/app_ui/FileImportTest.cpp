#include "app/ui/FileImport.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/Services.h"
#include "store/pim/PimStore.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class FileImportTest : public testing::Test {
 protected:
  FileImportTest() : m_places(HomePlaces(m_home.path(), {})) { g_services.Prompt = &m_prompt; }
  ~FileImportTest() override { g_services = {}; }

  QString Write(const QString& name, const QByteArray& content) {
    QFile file(m_home.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  // Imports the files and returns the one message that came of it.
  PromptMessage Import(const QStringList& files) {
    m_prompt.Expect(PromptAnswer::OK);
    ImportFilesAndReport(m_places, files);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    return m_prompt.Shown().back();
  }
  int CountContacts() const {
    PimStore store(m_places.StoreFile);
    EXPECT_EQ(store.Create(), 0);
    EXPECT_EQ(store.Logon(), 0);
    EXPECT_EQ(store.OpenFolder(FolderKind::Contacts), 0);
    return store.Contacts()->Count(store.Contacts()->Items());
  }

  QTemporaryDir m_home;
  Places m_places;
  test::ScriptedPrompt m_prompt;
};

QByteArray Card(const QByteArray& name) {
  return "BEGIN:VCARD\r\nVERSION:2.1\r\nN:" + name + "\r\nEND:VCARD\r\n";
}

TEST_F(FileImportTest, BringsTheCardsIntoTheStoreAndTellsHowMany) {
  const PromptMessage message =
      Import({Write(QStringLiteral("two.vcf"), Card("Kim;Chul") + Card("Lee;Min"))});
  EXPECT_EQ(message.Icon, PromptIcon::Information);
  EXPECT_TRUE(message.Text.contains(QStringLiteral("2 new"))) << message.Text.toStdString();
  EXPECT_EQ(CountContacts(), 2);
}

TEST_F(FileImportTest, AFileThatIsNotThereIsAWarning) {
  const PromptMessage message = Import({m_home.filePath(QStringLiteral("none.vcf"))});
  EXPECT_EQ(message.Icon, PromptIcon::Warning);
  EXPECT_TRUE(message.Text.contains(QStringLiteral("none.vcf"))) << message.Text.toStdString();
}

TEST_F(FileImportTest, ALongReportIsCutToWhatABoxShows) {
  QStringList files;
  for (int i = 0; i < 40; ++i) files.append(m_home.filePath(QStringLiteral("none%1.vcf").arg(i)));
  const QStringList lines = Import(files).Text.split(u'\n');
  EXPECT_EQ(lines.size(), 5);
  EXPECT_FALSE(lines.first().contains(m_home.path())) << "there is no room for folders";
  EXPECT_TRUE(lines.last().startsWith(QStringLiteral("... and "))) << lines.last().toStdString();
}

}  // namespace
}  // namespace quill
