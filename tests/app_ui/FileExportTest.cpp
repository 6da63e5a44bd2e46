#include "app/ui/FileExport.h"

#include "ExchangeFixture.h"
#include "app/ui/FileImport.h"

namespace quill {
namespace {

using test::CardOf;

class FileExportTest : public test::ExchangeFixture {
 protected:
  void BringIn() {
    m_prompt.Expect(PromptAnswer::OK);
    ImportFilesAndReport(*m_screen, m_places,
                         {Write(QStringLiteral("in.vcf"), CardOf("Kim") + CardOf("Lee"))});
  }
  PromptMessage Export(const QString& name, const QString& restriction = {}) {
    m_prompt.Expect(PromptAnswer::OK);
    ExportFileAndReport(*m_screen, m_places, {Path(name), restriction});
    return m_prompt.Shown().back();
  }

  const QString m_name = QStringLiteral("나.vcf");
};

TEST_F(FileExportTest, WritesEveryContactAndTellsHowMany) {
  BringIn();
  const PromptMessage message = Export(m_name);
  EXPECT_EQ(message.Text, QStringLiteral("나.vcf: 2 contacts."));
  EXPECT_EQ(message.Icon, PromptIcon::Information);
  EXPECT_EQ(Content(m_name).count("END:VCARD"), 2);
}

TEST_F(FileExportTest, WithoutContactsThatIsSaid) {
  EXPECT_EQ(Export(m_name).Text, QStringLiteral("There are no contacts yet."));
}

TEST_F(FileExportTest, KeepsToARestriction) {
  BringIn();
  Export(m_name, QStringLiteral("[FileAs] >= \"L\""));
  EXPECT_EQ(Content(m_name).count("END:VCARD"), 1);
  EXPECT_TRUE(Content(m_name).contains("Lee"));
}

TEST_F(FileExportTest, AFailureIsToldAndLeavesAnOlderFileWhole) {
  BringIn();
  Write(m_name, "old");
  const PromptMessage message = Export(m_name, QStringLiteral("["));
  EXPECT_EQ(message.Icon, PromptIcon::Warning);
  EXPECT_TRUE(message.Text.startsWith(QStringLiteral("나.vcf: "))) << message.Text.toStdString();
  EXPECT_EQ(Content(m_name), "old");
}

}  // namespace
}  // namespace quill
