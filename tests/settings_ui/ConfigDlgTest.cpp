#include "settings/ui/ConfigDlg.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>

#include "platform_ui/DialogFixture.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class ConfigDlgTest : public test::DialogFixture {
 protected:
  ConfigDlgTest() { g_settings = {}; }
  ~ConfigDlgTest() override { g_settings = {}; }

  QCheckBox& Check(int id) const { return Get<QCheckBox>(m_dialog, id); }
  QLineEdit& Edit() const { return Get<QLineEdit>(m_dialog, 1017); }
  QComboBox& List() const { return Get<QComboBox>(m_dialog, 1009); }
  int Run(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_dialog.DoModal();
  }
  void Close() { m_input.Key(Qt::Key_Escape); }
  // The number of pixels in a part of the dialog that are of this kind.
  template <class IsOfKind>
  int Pixels(QRect part, IsOfKind isOfKind) {
    const QImage image = m_dialog.grab(part).toImage();
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) found += isOfKind(image.pixelColor(x, y));
    return found;
  }

  QStringList m_done;
  CConfigDlg m_dialog{*m_screen,
                      {.DeleteAll = [this] { m_done.append(QStringLiteral("delete all")); },
                       .Receive = [this] { m_done.append(QStringLiteral("receive")); }}};
};

TEST_F(ConfigDlgTest, FillsTheScreenUnderTheProgramsName) {
  EXPECT_EQ(m_dialog.Size(), WindowSize::FullScreen);
  EXPECT_EQ(m_dialog.Caption(), QStringLiteral("Quill (Quillbook)"));
  EXPECT_EQ(Check(1046).text(), QStringLiteral("Show ABC Index"));
  EXPECT_EQ(Check(1049).text(), QStringLiteral("Auto Area Code"));
  EXPECT_EQ(ClientPlace(m_dialog, 1000), QRect(20, 120, 90, 25));
  EXPECT_EQ(ClientPlace(m_dialog, 1001), QRect(115, 120, 110, 25));
  EXPECT_EQ(Get<QPushButton>(m_dialog, 1000).text(), QStringLiteral("Delete All"));
  EXPECT_EQ(Get<QPushButton>(m_dialog, 1001).text(), QStringLiteral("Receive via IrDA"));
}

TEST_F(ConfigDlgTest, PaintsABlueHeaderAndALineUnderIt) {
  const auto isBlue = [](QColor color) { return color.blue() > color.red() + 100; };
  const auto isBlack = [](QColor color) { return color == Qt::black; };
  EXPECT_GT(Pixels({5, 0, 220, 25}, isBlue), 100);
  EXPECT_EQ(Pixels({5, 0, 220, 25}, isBlack), 0);
  EXPECT_EQ(Pixels({0, 25, 240, 1}, isBlack), 240);
  EXPECT_EQ(Pixels({0, 26, 240, 1}, isBlack), 0);
}

TEST_F(ConfigDlgTest, OpensWithTheSettings) {
  g_settings = {.Abc = 0, .AreaCode = 1, .AreaCodeValue = u"031"_qs};
  Run({[this] {
    EXPECT_FALSE(Check(1046).isChecked());
    EXPECT_TRUE(Check(1049).isChecked());
    EXPECT_EQ(Edit().text(), QStringLiteral("031"));
    EXPECT_EQ(List().count(), 21);
    EXPECT_EQ(List().currentText(), QStringLiteral("031"));
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(List().isEnabled());
    EXPECT_TRUE(Edit().isEnabled());
    Close();
  }});
}

TEST_F(ConfigDlgTest, WithoutAnAreaCodeOfTheListNoneIsSelected) {
  g_settings.AreaCodeValue = QStringLiteral("0");
  Run({[this] {
    EXPECT_EQ(List().currentIndex(), -1);
    EXPECT_TRUE(Check(1046).isChecked());
    EXPECT_FALSE(Check(1049).isChecked());
    Close();
  }});
}

TEST_F(ConfigDlgTest, TheAreaCodeIsEnabledWithItsCheckBoxAtOnce) {
  Run({[this] {
         EXPECT_FALSE(Edit().isEnabled());
         EXPECT_FALSE(List().isEnabled());
         TapControl(m_dialog, 1049);
         EXPECT_TRUE(Edit().isEnabled());
         EXPECT_TRUE(List().isEnabled());
         TapControl(m_dialog, 1049);
         EXPECT_FALSE(Edit().isEnabled());
         EXPECT_FALSE(List().isEnabled());
       },
       [this] { Close(); }});
}

TEST_F(ConfigDlgTest, OKWritesTheSettingsAndTheEditorWins) {
  g_settings = {.Name = 7, .AreaCode = 1, .AreaCodeValue = u"031"_qs};
  const int result = Run({[this] {
                            TapControl(m_dialog, 1046);
                            Edit().setText(QStringLiteral("0505"));
                            List().setCurrentIndex(0);
                          },
                          [this] { TapControl(m_dialog, 1064); }});
  EXPECT_EQ(result, kResultOK);
  EXPECT_EQ(g_settings,
            (Settings{.Abc = 0, .Name = 7, .AreaCode = 1, .AreaCodeValue = u"0505"_qs}));
}

TEST_F(ConfigDlgTest, AnAreaCodeThatIsSwitchedOffIsKept) {
  g_settings = {.AreaCode = 1, .AreaCodeValue = u"031"_qs};
  Run({[this] { TapControl(m_dialog, 1049); }, [this] { TapControl(m_dialog, 1064); }});
  EXPECT_EQ(g_settings, (Settings{.Abc = 1, .AreaCode = 0, .AreaCodeValue = u"031"_qs}));
}

TEST_F(ConfigDlgTest, CancelStoresNothing) {
  const Settings before = g_settings;
  const int result = Run({[this] {
                            TapControl(m_dialog, 1046);
                            TapControl(m_dialog, 1049);
                            Edit().setText(QStringLiteral("02"));
                          },
                          [this] { Close(); }});
  EXPECT_EQ(result, kResultCancel);
  EXPECT_EQ(g_settings, before);
}

TEST_F(ConfigDlgTest, ItsButtonsActAtOnceAndLeaveItOpen) {
  Run({[this] { TapControl(m_dialog, 1000); },
       [this] {
         EXPECT_EQ(m_done, QStringList(QStringLiteral("delete all")));
         TapControl(m_dialog, 1001);
       },
       [this] {
         EXPECT_EQ(m_done.last(), QStringLiteral("receive"));
         EXPECT_EQ(m_screen->Topmost(), &m_dialog);
         Close();
       }});
}

TEST_F(ConfigDlgTest, AButtonWithoutAnActionDoesNothing) {
  CConfigDlg dialog(*m_screen, {});
  const Steps steps(*m_screen, {[&] {
                                  TapControl(dialog, 1000);
                                  TapControl(dialog, 1001);
                                },
                                [&] { TapControl(dialog, 1064); }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
}

TEST_F(ConfigDlgTest, ThePanelIsUpWhileTheAreaCodeHasTheFocus) {
  g_settings.AreaCode = 1;
  Run({[this] {
         EXPECT_FALSE(m_panel.IsUp());
         TapControl(m_dialog, 1017);
         EXPECT_TRUE(m_panel.IsUp());
         m_input.Key(Qt::Key_Tab);
         EXPECT_FALSE(m_panel.IsUp());
         TapControl(m_dialog, 1017);
       },
       [this] { Close(); }});
  EXPECT_FALSE(m_panel.IsUp()) << "it goes with the dialog";
}

TEST_F(ConfigDlgTest, TheEditorHasAName) {
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Edit())->text(QAccessible::Name),
            QStringLiteral("Area code"));
}

}  // namespace
}  // namespace quill
