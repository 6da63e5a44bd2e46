#include "app/ui/FileImport.h"

#include <QComboBox>
#include <QFile>
#include <QGuiApplication>

#include <sys/stat.h>

#include "ExchangeFixture.h"

namespace quill {
namespace {

using test::CardOf;
using test::Step;
using test::Steps;

const QByteArray kKim = "\xB1\xE8;\xC3\xB6\xBC\xF6";  // in Korean Windows

class FileImportTest : public test::ExchangeFixture {
 protected:
  // Imports the files and returns the one message that came of it.
  PromptMessage Import(const QStringList& files, std::vector<Step> steps = {}) {
    m_prompt.Expect(PromptAnswer::OK);
    const Steps running(*m_screen, std::move(steps));
    ImportFilesAndReport(*m_screen, m_places, files);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    return m_prompt.Shown().back();
  }
};

TEST_F(FileImportTest, BringsTheCardsIntoTheStoreAndTellsHowMany) {
  const PromptMessage message =
      Import({Write(QStringLiteral("두사람.vcf"), CardOf("Kim;Chul") + CardOf("Lee;Min"))});
  EXPECT_EQ(message.Icon, PromptIcon::Information);
  EXPECT_EQ(message.Text,
            QStringLiteral("두사람.vcf: 2 new, 0 changed, 0 the same, 0 unreadable."));
  EXPECT_EQ(Names().size(), 2);
}

TEST_F(FileImportTest, AFileThatIsNotThereIsAWarning) {
  const PromptMessage message = Import({Path(QStringLiteral("none.vcf"))});
  EXPECT_EQ(message.Icon, PromptIcon::Warning);
  EXPECT_TRUE(message.Text.startsWith(QStringLiteral("none.vcf: "))) << message.Text.toStdString();
}

TEST_F(FileImportTest, APipeKeepsNobodyWaiting) {
  const QString pipe = Path(QStringLiteral("pipe.vcf"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
  const PromptMessage message = Import({pipe});
  EXPECT_EQ(message.Icon, PromptIcon::Warning);
  EXPECT_TRUE(message.Text.contains(QStringLiteral("not a file"))) << message.Text.toStdString();
}

TEST_F(FileImportTest, UndeclaredTextAsksForItsCharacterSet) {
  Import({Write(QStringLiteral("good.vcf"), CardOf("Lee;Min")),
          Write(QStringLiteral("old.vcf"), CardOf(kKim))},
         {[this] {
            auto& list = dynamic_cast<QComboBox&>(*m_screen->Topmost()->Control(1002));
            list.setCurrentIndex(list.findData(QByteArray("windows-949")));
          },
          [this] { m_input.Key(Qt::Key_Return); }});
  EXPECT_EQ(Names(), QStringList({QStringLiteral("Lee, Min"), QStringLiteral("김, 철수")}));
}

TEST_F(FileImportTest, WithoutAnAnswerNothingComesIn) {
  const QString file = Write(QStringLiteral("old.vcf"), CardOf(kKim));
  const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_Escape); }});
  ImportFilesAndReport(*m_screen, m_places, {file});
  EXPECT_TRUE(m_prompt.Shown().empty());
  EXPECT_FALSE(QFile::exists(m_places.StoreFile));
}

TEST_F(FileImportTest, WhileTheProgramClosesNothingComesIn) {
  m_screen->CloseAll();
  Import({Write(QStringLiteral("a.vcf"), CardOf("Kim"))});
  EXPECT_FALSE(QFile::exists(m_places.StoreFile));
}

}  // namespace
}  // namespace quill
