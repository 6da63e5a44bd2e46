#include "platform/ui/ProgressDlg.h"

#include <QApplication>
#include <QLabel>

#include "platform_ui/DialogFixture.h"
#include "platform_ui/SampleWindows.h"

namespace quill {
namespace {

using namespace std::chrono_literals;
using test::Steps;

class ProgressDlgTest : public test::DialogFixture {
 protected:
  // The work goes on until it shall stop, for at most so many rounds. How many it went.
  static int WorkFor(CProgressDlg& progress, int rounds) {
    int done = 0;
    while (done < rounds && progress.Continue(QStringLiteral("김철수.vcf"),
                                              QStringLiteral("%1 cards").arg(++done))) {
    }
    return done;
  }

  test::SampleFrame m_frame{*m_screen};
};

TEST_F(ProgressDlgTest, ShortWorkShowsAWaitCursorAndNoWindow) {
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"),
      [](CProgressDlg& progress) {
        EXPECT_EQ(WorkFor(progress, 3), 3);
        EXPECT_FALSE(progress.isVisible());
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
      },
      24h);
  EXPECT_EQ(dialog.DoModal(), kResultOK);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ProgressDlgTest, LongWorkShowsHowFarItIs) {
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"),
      [this](CProgressDlg& progress) {
        EXPECT_EQ(WorkFor(progress, 3), 3);
        EXPECT_TRUE(progress.isVisible());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(m_screen->Topmost(), &progress);
        EXPECT_EQ(progress.Caption(), QStringLiteral("Import"));
        EXPECT_EQ(Get<QLabel>(progress, 1001).text(), QStringLiteral("김철수.vcf"));
        EXPECT_EQ(Get<QLabel>(progress, 1002).text(), QStringLiteral("3 cards"));
      },
      0ms);
  EXPECT_EQ(dialog.DoModal(), kResultOK);
  EXPECT_NE(m_screen->Topmost(), &dialog);
}

TEST_F(ProgressDlgTest, AShownWindowLeavesTheWaitCursorToNobody) {
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"), [](CProgressDlg& progress) { WorkFor(progress, 1); },
      0ms);
  dialog.DoModal();
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ProgressDlgTest, CancelStopsTheWork) {
  int rounds = 0;
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"),
      [&](CProgressDlg& progress) { rounds = WorkFor(progress, 1000); }, 0ms);
  const Steps steps(*m_screen, {[&] { TapControl(dialog, kResultCancel); }});
  EXPECT_EQ(dialog.DoModal(), kResultCancel);
  EXPECT_LT(rounds, 1000);
}

TEST_F(ProgressDlgTest, EscapeCancelsAndReturnOnTheButtonToo) {
  for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
    CProgressDlg dialog(
        *m_screen, QStringLiteral("Import"),
        [](CProgressDlg& progress) { WorkFor(progress, 1000); }, 0ms);
    const Steps steps(*m_screen, {[&] { m_input.Key(key); }});
    EXPECT_EQ(dialog.DoModal(), kResultCancel) << key;
  }
}

TEST_F(ProgressDlgTest, NothingElseCanBeReached) {
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"), [](CProgressDlg& progress) { WorkFor(progress, 5); },
      0ms);
  const Steps steps(*m_screen, {[&] {
    EXPECT_FALSE(m_screen->IsChromeUsable());
    EXPECT_EQ(qobject_cast<CWindow*>(WidgetAt({120, 60})), nullptr) << "a shade lies above";
    dialog.OnOK();
  }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
}

TEST_F(ProgressDlgTest, ClosingTheProgramStopsTheWork) {
  int rounds = 0;
  CProgressDlg dialog(
      *m_screen, QStringLiteral("Import"),
      [&](CProgressDlg& progress) { rounds = WorkFor(progress, 1000); }, 0ms);
  const Steps steps(*m_screen, {[&] { m_screen->CloseAll(); }});
  dialog.DoModal();
  EXPECT_LT(rounds, 1000);
}

TEST_F(ProgressDlgTest, WhileTheProgramClosesNoWorkBegins) {
  m_screen->CloseAll();
  bool began = false;
  CProgressDlg dialog(*m_screen, QStringLiteral("Import"), [&](CProgressDlg&) { began = true; });
  EXPECT_EQ(dialog.DoModal(), kResultCancel);
  EXPECT_FALSE(began);
}

}  // namespace
}  // namespace quill
