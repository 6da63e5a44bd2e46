#include "platform/ui/FileListDlg.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

#include "platform/Services.h"
#include "platform/ui/FileList.h"
#include "platform_ui/DialogFixture.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class FileListDlgTest : public test::DialogFixture {
 protected:
  FileListDlgTest() {
    g_services.Prompt = &m_prompt;
    EXPECT_TRUE(QDir(m_home.path()).mkpath(QStringLiteral("연락처/더")));
    MakeFile(QStringLiteral("old.vcf"));
    MakeFile(QStringLiteral("연락처/김철수.vcf"));
  }

  void MakeFile(const QString& name) const {
    QFile file(m_home.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  FileRequest Reading() const {
    return {.Caption = QStringLiteral("Import"),
            .Folder = m_home.path(),
            .Patterns = {QStringLiteral("*.vcf"), QStringLiteral("*.vcard")}};
  }
  FileRequest Writing() const {
    FileRequest request = Reading();
    request.Use = FileUse::Write;
    request.Name = QStringLiteral("contacts.vcf");
    return request;
  }
  static CFileList& List(const CDialog& dialog) { return Get<CFileList>(dialog, 1002); }
  static QLineEdit& Name(const CDialog& dialog) { return Get<QLineEdit>(dialog, 1005); }
  Step Tapping(const CDialog& dialog, const char16_t* row) {
    return [this, &dialog, row] {
      m_input.Tap(RowNamed(List(dialog), QString::fromUtf16(row)).center());
    };
  }
  Step Key(int key) {
    return [this, key] { m_input.Key(key); };
  }
  Step Typing(CDialog& dialog, const char16_t* name) {
    return [this, &dialog, name] {
      Name(dialog).setFocus();
      Name(dialog).selectAll();
      m_input.Type(QString::fromUtf16(name));
    };
  }
  static Step OK(CDialog& dialog) {
    return [&dialog] { dialog.OnOK(); };
  }
  static Step Cancel(CDialog& dialog) {
    return [&dialog] { dialog.OnCancel(); };
  }
  int Run(CDialog& dialog, std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return dialog.DoModal();
  }

  QTemporaryDir m_home;
  test::ScriptedPrompt m_prompt;
};

TEST_F(FileListDlgTest, ShowsTheFolderItsEntriesAndNothingElse) {
  CFileListDlg dialog(*m_screen, Reading());
  Run(dialog, {[&] {
                 EXPECT_EQ(dialog.Caption(), QStringLiteral("Import"));
                 EXPECT_EQ(dialog.Folder(), m_home.path());
                 EXPECT_TRUE(Get<QLabel>(dialog, 1001).text().endsWith(m_home.path().right(8)));
                 EXPECT_TRUE(List(dialog).hasFocus());
                 EXPECT_EQ(List(dialog).Rows().size(), 3U);
                 EXPECT_EQ(List(dialog).geometry().bottom(), dialog.rect().bottom());
                 for (const int id : {1004, 1005, 1006})
                   EXPECT_FALSE(dialog.Control(id)->isVisible()) << id;
               },
               Cancel(dialog)});
  EXPECT_EQ(dialog.Path(), QString());
}

TEST_F(FileListDlgTest, TapsOpenAFolderAndTakeAFile) {
  CFileListDlg dialog(*m_screen, Reading());
  EXPECT_EQ(Run(dialog, {Tapping(dialog, u"Folder 연락처"), Tapping(dialog, u"Folder 연락처"),
                         Tapping(dialog, u"김철수.vcf"), Tapping(dialog, u"김철수.vcf")}),
            kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QStringLiteral("연락처/김철수.vcf")));
  EXPECT_EQ(dialog.Folder(), m_home.filePath(QStringLiteral("연락처")));
}

TEST_F(FileListDlgTest, KeysDoTheSame) {
  CFileListDlg dialog(*m_screen, Reading());
  EXPECT_EQ(Run(dialog, {Key(Qt::Key_Down), Key(Qt::Key_Down), Key(Qt::Key_Return),
                         Key(Qt::Key_End), Key(Qt::Key_Return)}),
            kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QStringLiteral("연락처/김철수.vcf")));
}

TEST_F(FileListDlgTest, OKWithNothingSelectedWaits) {
  CFileListDlg dialog(*m_screen, Reading());
  EXPECT_EQ(Run(dialog, {OK(dialog), Cancel(dialog)}), kResultCancel);
}

TEST_F(FileListDlgTest, GoesUpToTheFolderItCameFrom) {
  FileRequest request = Reading();
  request.Folder = m_home.filePath(QStringLiteral("연락처/더"));
  CFileListDlg dialog(*m_screen, request);
  Run(dialog, {Key(Qt::Key_Backspace),
               [&] {
                 EXPECT_EQ(dialog.Folder(), m_home.filePath(QStringLiteral("연락처")));
                 EXPECT_EQ(List(dialog).Selected()->Name, QStringLiteral("더"));
               },
               Tapping(dialog, u"Folder above"), Tapping(dialog, u"Folder above"),
               [&] { EXPECT_EQ(dialog.Folder(), m_home.path()); }, Cancel(dialog)});
}

TEST_F(FileListDlgTest, TheRootIsTheUppermost) {
  FileRequest request = Reading();
  request.Folder = QStringLiteral("/");
  CFileListDlg dialog(*m_screen, request);
  Run(dialog, {Key(Qt::Key_Backspace), Cancel(dialog)});
  EXPECT_EQ(dialog.Folder(), QStringLiteral("/"));
}

TEST_F(FileListDlgTest, SaysInTheListThatAFolderCannotBeRead) {
  FileRequest request = Reading();
  request.Folder = m_home.filePath(QStringLiteral("none"));
  const CFileListDlg dialog(*m_screen, request);
  EXPECT_EQ(List(dialog).Rows().back().SpokenName, QStringLiteral("This folder cannot be read."));
}

TEST_F(FileListDlgTest, TakesTheNameInTheFolderShown) {
  CFileListDlg dialog(*m_screen, Writing());
  EXPECT_EQ(Run(dialog, {[&] { EXPECT_TRUE(Name(dialog).isVisible()); },
                         Tapping(dialog, u"Folder 연락처"), OK(dialog), OK(dialog)}),
            kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QStringLiteral("연락처/contacts.vcf")));
}

struct NameCase {
  const char16_t* Typed;
  const char16_t* File;  // in the folder
};

class FileNames : public FileListDlgTest, public testing::WithParamInterface<NameCase> {};

TEST_P(FileNames, EndAsCardFilesDo) {
  CFileListDlg dialog(*m_screen, Writing());
  EXPECT_EQ(Run(dialog, {Typing(dialog, GetParam().Typed), Key(Qt::Key_Return)}), kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QString::fromUtf16(GetParam().File)));
}

INSTANTIATE_TEST_SUITE_P(Names, FileNames,
                         testing::Values(NameCase{u"친구들", u"친구들.vcf"},
                                         NameCase{u" a.VCF ", u"a.VCF"},
                                         NameCase{u"a.vcard", u"a.vcard"},
                                         NameCase{u"a.b", u"a.b.vcf"},
                                         NameCase{u"연락처/a", u"연락처/a.vcf"}));

TEST_F(FileListDlgTest, ANameThatIsAFolderOpensIt) {
  CFileListDlg dialog(*m_screen, Writing());
  Run(dialog, {Typing(dialog, u"연락처"), OK(dialog),
               [&] { EXPECT_EQ(dialog.Folder(), m_home.filePath(QStringLiteral("연락처"))); },
               Cancel(dialog)});
}

TEST_F(FileListDlgTest, WithoutANameItWaits) {
  CFileListDlg dialog(*m_screen, Writing());
  EXPECT_EQ(Run(dialog, {Typing(dialog, u"  "), OK(dialog), Cancel(dialog)}), kResultCancel);
}

TEST_F(FileListDlgTest, TypingTakesTheNameAndNotWhatIsSelected) {
  CFileListDlg dialog(*m_screen, Writing());
  EXPECT_EQ(Run(dialog, {Tapping(dialog, u"Folder 연락처"), Typing(dialog, u"new"), OK(dialog)}),
            kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QStringLiteral("new.vcf")));
}

TEST_F(FileListDlgTest, AskBeforeAFileIsWrittenOver) {
  CFileListDlg dialog(*m_screen, Writing());
  m_prompt.Expect(PromptAnswer::No);
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(Run(dialog, {Tapping(dialog, u"old.vcf"),
                         [&] { EXPECT_EQ(Name(dialog).text(), QStringLiteral("old.vcf")); },
                         OK(dialog), [&] { EXPECT_EQ(m_prompt.Shown().size(), 1U); }, OK(dialog)}),
            kResultOK);
  EXPECT_EQ(dialog.Path(), m_home.filePath(QStringLiteral("old.vcf")));
  EXPECT_EQ(m_prompt.Shown()[0].Buttons, PromptButtons::YesNo);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("old.vcf is there already. Replace it?"));
}

TEST_F(FileListDlgTest, AnOptionIsThereWhenItIsAskedFor) {
  FileRequest request = Writing();
  request.Option = QStringLiteral("Only some");
  CFileListDlg dialog(*m_screen, request);
  Run(dialog, {[&] {
                 EXPECT_TRUE(dialog.Control(1006)->isVisible());
                 EXPECT_EQ(Get<QCheckBox>(dialog, 1006).text(), QStringLiteral("Only some"));
                 EXPECT_FALSE(dialog.IsOptionChecked());
                 EXPECT_GT(List(dialog).y(), dialog.Control(1006)->geometry().bottom());
                 Get<QCheckBox>(dialog, 1006).setChecked(true);
               },
               OK(dialog)});
  EXPECT_TRUE(dialog.IsOptionChecked());
}

TEST_F(FileListDlgTest, MakesRoomForTheInputPanel) {
  CFileListDlg dialog(*m_screen, Writing());
  m_panel.Raise();
  Run(dialog, {[&] {
                 EXPECT_EQ(dialog.geometry(), m_panel.VisibleArea());
                 EXPECT_EQ(List(dialog).geometry().bottom(), dialog.rect().bottom());
                 m_panel.Lower();
                 EXPECT_EQ(dialog.geometry(), m_panel.VisibleArea());
               },
               Cancel(dialog)});
}

TEST_F(FileListDlgTest, WorksWithoutAnInputPanel) {
  g_services.InputPanel = nullptr;
  CFileListDlg dialog(*m_screen, Writing());
  EXPECT_EQ(Run(dialog, {OK(dialog)}), kResultOK);
}

TEST_F(FileListDlgTest, TheKeysGoFromTheNameToTheList) {
  CFileListDlg dialog(*m_screen, Writing());
  Run(dialog, {[&] {
                 EXPECT_TRUE(Name(dialog).hasFocus());
                 EXPECT_EQ(Name(dialog).selectedText(), QStringLiteral("contacts.vcf"));
               },
               Key(Qt::Key_Tab), [&] { EXPECT_TRUE(List(dialog).hasFocus()); }, Cancel(dialog)});
}

}  // namespace
}  // namespace quill
