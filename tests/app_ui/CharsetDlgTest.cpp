#include "app/ui/CharsetDlg.h"

#include <QComboBox>
#include <QLabel>

#include "exchange/CharsetChoices.h"
#include "platform_ui/DialogFixture.h"

namespace quill {
namespace {

class CharsetDlgTest : public test::DialogFixture {
 protected:
  static QComboBox& List(const CDialog& dialog) { return Get<QComboBox>(dialog, 1002); }
  static QString Preview(const CDialog& dialog) { return Get<QLabel>(dialog, 1003).text(); }

  CCharsetDlg m_dialog{*m_screen, "N:\xB1\xE8;\xC3\xB6\xBC\xF6", "windows-1252"};
};

TEST_F(CharsetDlgTest, OffersEveryChoiceWithTheUsualOnePreset) {
  EXPECT_EQ(List(m_dialog).count(), static_cast<int>(kCharsetChoices.size()));
  EXPECT_EQ(List(m_dialog).currentText(), QStringLiteral("Western (windows-1252)"));
  EXPECT_EQ(List(m_dialog).accessibleName(), QStringLiteral("Character set"));
  EXPECT_EQ(m_dialog.Charset(), "windows-1252");
}

TEST_F(CharsetDlgTest, ShowsHowTheNameReads) {
  EXPECT_EQ(Preview(m_dialog), QStringLiteral("±è Ã¶¼ö"));
  List(m_dialog).setCurrentIndex(0);
  EXPECT_EQ(Preview(m_dialog), QStringLiteral("김 철수"));
  EXPECT_EQ(m_dialog.Charset(), "windows-949");
}

TEST_F(CharsetDlgTest, ALongTextEndsInsideTheWindow) {
  const CCharsetDlg dialog(*m_screen, "NOTE:" + QByteArray(400, '\xE8'), "windows-1252");
  EXPECT_LE(dialog.Control(1003)->fontMetrics().horizontalAdvance(Preview(dialog)),
            dialog.Control(1003)->width());
  EXPECT_FALSE(Preview(dialog).isEmpty());
}

TEST_F(CharsetDlgTest, HasRoomForEveryControl) {
  for (const auto& [id, control] : m_dialog.Controls())
    EXPECT_TRUE(m_dialog.rect().contains(control->geometry())) << id;
}

}  // namespace
}  // namespace quill
