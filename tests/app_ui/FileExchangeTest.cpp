#include "app/ui/FileExchange.h"

#include <QCheckBox>
#include <QDir>

#include "ExchangeFixture.h"
#include "list/ListState.h"
#include "platform/ui/FileListDlg.h"

namespace quill {
namespace {

using test::CardOf;
using test::Step;
using test::Steps;

class FileExchangeTest : public test::ExchangeFixture {
 protected:
  FileExchangeTest() {
    g_list = {};
    m_files.Imported = [this] { ++m_imports; };
  }
  ~FileExchangeTest() override { g_list = {}; }

  CFileListDlg& Dialog() const { return dynamic_cast<CFileListDlg&>(*m_screen->Topmost()); }
  QCheckBox& Option() const { return Get<QCheckBox>(Dialog(), 1006); }
  Step Key(int key) {
    return [this, key] { m_input.Key(key); };
  }
  void Import(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    m_files.Import();
  }
  void Export(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    m_files.Export();
  }
  void BringIn(const QByteArray& cards) {
    m_prompt.Expect(PromptAnswer::OK);
    m_files.Take({Write(QStringLiteral("in.vcf"), cards)});
  }

  FileExchange m_files{*m_screen, m_places};
  int m_imports = 0;
};

TEST_F(FileExchangeTest, TakesFilesAndTellsThatContactsCameIn) {
  BringIn(CardOf("Kim"));
  EXPECT_EQ(Names(), QStringList{QStringLiteral("Kim")});
  EXPECT_EQ(m_imports, 1);
}

TEST_F(FileExchangeTest, MemosAreHandedOnAndNoContactsCameIn) {
  QStringList taken;
  m_files.MemoTaken = [&taken](const QString& path) { taken.append(path); };
  m_files.Take({Write(QStringLiteral("a.pwi"), "ink")});
  EXPECT_EQ(taken, QStringList{QStringLiteral("\\a.pwi")});
  EXPECT_EQ(m_imports, 0);
}

TEST_F(FileExchangeTest, AMemoThatIsNotThereIsToldByItsName) {
  m_prompt.Expect(PromptAnswer::OK);
  m_files.Take({Path(QStringLiteral("gone.pwi"))});
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("gone.pwi could not be brought in."));
}

TEST_F(FileExchangeTest, WhatComesMeanwhileWaitsForItsTurn) {
  const QString first = Write(QStringLiteral("first.vcf"), CardOf("\xB1\xE8"));
  const QString second = Write(QStringLiteral("second.vcf"), CardOf("Kim"));
  m_prompt.Expect(PromptAnswer::OK);
  const Steps steps(*m_screen, {[&] {
                                  m_files.Take({second});
                                  EXPECT_EQ(m_imports, 0) << "the first one still asks";
                                },
                                Key(Qt::Key_Escape)});
  m_files.Take({first});
  EXPECT_EQ(m_imports, 2);
  EXPECT_EQ(Names(), QStringList{QStringLiteral("Kim")});
}

TEST_F(FileExchangeTest, ImportBeginsInTheHomeFolderAndTakesTheChosenFile) {
  Write(QStringLiteral("a.vcf"), CardOf("Kim"));
  m_prompt.Expect(PromptAnswer::OK);
  Import({[this] {
            EXPECT_EQ(Dialog().Caption(), QStringLiteral("Import"));
            EXPECT_EQ(Dialog().Folder(), m_home.path());
          },
          Key(Qt::Key_End), Key(Qt::Key_Return)});
  EXPECT_EQ(Names(), QStringList{QStringLiteral("Kim")});
  EXPECT_EQ(m_imports, 1);
}

TEST_F(FileExchangeTest, TheFolderIsRememberedAsLongAsItIsThere) {
  const QString folder = Path(QStringLiteral("친구"));
  ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("친구")));
  Import({Key(Qt::Key_End), Key(Qt::Key_Return), Key(Qt::Key_Escape)});
  Export({[&] { EXPECT_EQ(Dialog().Folder(), folder); }, Key(Qt::Key_Escape)});
  ASSERT_TRUE(QDir(m_home.path()).rmdir(QStringLiteral("친구")));
  Import({[this] { EXPECT_EQ(Dialog().Folder(), m_home.path()); }, Key(Qt::Key_Escape)});
  EXPECT_EQ(m_imports, 0);
}

TEST_F(FileExchangeTest, ExportWritesEveryContactUnderThePresetName) {
  BringIn(CardOf("Kim") + CardOf("Lee"));
  m_prompt.Expect(PromptAnswer::OK);
  Export({[this] {
            EXPECT_EQ(Dialog().Caption(), QStringLiteral("Export"));
            EXPECT_FALSE(Option().isVisible());
          },
          Key(Qt::Key_Return)});
  EXPECT_EQ(Content(QStringLiteral("contacts.vcf")).count("END:VCARD"), 2);
}

TEST_F(FileExchangeTest, ExportOffersTheContactsOfAFilteredList) {
  BringIn(CardOf("Kim") + CardOf("Lee"));
  g_list.Restriction = QStringLiteral("[FileAs] >= \"L\"");
  m_prompt.Expect(PromptAnswer::OK);
  Export({[this] {
            EXPECT_TRUE(Option().isVisible());
            EXPECT_FALSE(Option().isChecked());
            Option().setChecked(true);
          },
          Key(Qt::Key_Return)});
  EXPECT_EQ(Content(QStringLiteral("contacts.vcf")).count("END:VCARD"), 1);
}

TEST_F(FileExchangeTest, UnlessItIsCheckedExportWritesThemAll) {
  BringIn(CardOf("Kim") + CardOf("Lee"));
  g_list.Restriction = QStringLiteral("[FileAs] >= \"L\"");
  m_prompt.Expect(PromptAnswer::OK);
  Export({Key(Qt::Key_Return)});
  EXPECT_EQ(Content(QStringLiteral("contacts.vcf")).count("END:VCARD"), 2);
}

TEST_F(FileExchangeTest, AListOfMemosOffersNoContacts) {
  g_list.Restriction = QStringLiteral("[FileAs] >= \"L\"");
  g_list.Mode = ViewMode::ByMemo;
  Export({[this] { EXPECT_FALSE(Option().isVisible()); }, Key(Qt::Key_Escape)});
  EXPECT_FALSE(QFile::exists(Path(QStringLiteral("contacts.vcf"))));
}

TEST_F(FileExchangeTest, WhatComesDuringAnExportWaitsForItsEnd) {
  BringIn(CardOf("Kim"));
  Write(QStringLiteral("more.vcf"), CardOf("Lee"));
  // The report of the export, then that of the import.
  class TakingPrompt : public Prompt {
   public:
    PromptAnswer Show(const PromptMessage& message) override {
      Texts.append(message.Text);
      if (Texts.size() == 1) Meanwhile();
      return PromptAnswer::OK;
    }
    std::function<void()> Meanwhile;
    QStringList Texts;
  } prompt;
  prompt.Meanwhile = [&] {
    m_files.Take({Path(QStringLiteral("more.vcf"))});
    EXPECT_EQ(m_imports, 1);
  };
  g_services.Prompt = &prompt;
  Export({Key(Qt::Key_Return)});
  EXPECT_EQ(m_imports, 2);
  ASSERT_EQ(prompt.Texts.size(), 2);
  EXPECT_TRUE(prompt.Texts[1].startsWith(QStringLiteral("more.vcf: 1 new")));
}

}  // namespace
}  // namespace quill
