#include "platform/ui/OuterWindow.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class OuterWindowTest : public test::ScreenFixture {};

TEST_F(OuterWindowTest, HasTheSizeOfTheScreen) {
  EXPECT_EQ(m_outer->size(), QSize(240, 320));
  EXPECT_EQ(m_screen->geometry(), QRect(0, 0, 240, 320));
}

TEST_F(OuterWindowTest, TheScreenStandsInTheCentreOfALargerOne) {
  m_outer->setFixedSize(400, 500);
  EXPECT_EQ(m_screen->geometry(), QRect(80, 90, 240, 320));
}

TEST_F(OuterWindowTest, FullScreenIsAsLargeAsTheDesktopAllows) {
  m_outer->ShowOnFullScreen();
  EXPECT_TRUE(m_outer->isFullScreen());
  EXPECT_EQ(m_screen->geometry().center(), m_outer->rect().center());
  EXPECT_EQ(m_screen->size(), QSize(240, 320));
}

TEST_F(OuterWindowTest, TellsOnceThatItWasPaintedAndNotWhileItPaints) {
  int calls = 0;
  m_outer->Painted = [&calls] { ++calls; };
  m_outer->repaint();
  EXPECT_EQ(calls, 0);
  m_outer->repaint();
  QCoreApplication::processEvents();
  EXPECT_EQ(calls, 1);
}

TEST_F(OuterWindowTest, KeysReachTheScreenWhileNothingInItHasTheFocus) {
  test::SampleFrame frame(*m_screen);
  frame.HasContextMenu = true;
  ASSERT_EQ(m_outer->focusWidget(), nullptr);
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(frame.Happened.size(), 1);
}

TEST_F(OuterWindowTest, AKeyThatAControlLeavesReachesTheScreenOnce) {
  test::SampleFrame frame(*m_screen);
  frame.HasContextMenu = true;
  QLineEdit editor(&frame);
  editor.show();
  editor.setFocus();
  m_input.Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(frame.Happened.size(), 1);
}

class DroppedFilesTest : public OuterWindowTest {
 protected:
  DroppedFilesTest() {
    m_outer->MayDrop = [this] { return m_mayDrop; };
    m_outer->FilesDropped = [this](const QStringList& files) { m_dropped = files; };
    m_data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a/김.vcf")),
                    QUrl(QStringLiteral("https://example.org/b.vcf")),
                    QUrl::fromLocalFile(QStringLiteral("/c"))});
  }

  bool IsWelcome() {
    QDragEnterEvent event({50, 50}, Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton,
                          Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_outer.get(), &event);
    return event.isAccepted();
  }

  QMimeData m_data;
  bool m_mayDrop = true;
  QStringList m_dropped;
};

TEST_F(DroppedFilesTest, AreHandedOverAsACopy) {
  EXPECT_TRUE(m_outer->acceptDrops());
  EXPECT_TRUE(IsWelcome());
  QDropEvent event({50, 50}, Qt::CopyAction | Qt::MoveAction, &m_data, Qt::LeftButton,
                   Qt::NoModifier);
  event.setDropAction(Qt::MoveAction);
  QCoreApplication::sendEvent(m_outer.get(), &event);
  EXPECT_TRUE(event.isAccepted());
  EXPECT_EQ(event.dropAction(), Qt::CopyAction);
  EXPECT_EQ(m_dropped, QStringList({QStringLiteral("/a/김.vcf"), QStringLiteral("/c")}));
}

TEST_F(DroppedFilesTest, AreNotWelcomeWhileTheyMayNot) {
  m_mayDrop = false;
  EXPECT_FALSE(IsWelcome());
}

TEST_F(DroppedFilesTest, AreNotWelcomeWithoutSomebodyToTakeThem) {
  m_outer->FilesDropped = nullptr;
  EXPECT_FALSE(IsWelcome());
}

TEST_F(DroppedFilesTest, MustBeFilesOfThisComputer) {
  m_data.setUrls({QUrl(QStringLiteral("https://example.org/b.vcf"))});
  EXPECT_FALSE(IsWelcome());
}

TEST_F(OuterWindowTest, WithoutAListenerClosingDoesNothing) {
  m_outer->CloseAsked = nullptr;
  EXPECT_FALSE(m_outer->close());
  EXPECT_FALSE(m_screen->IsClosing());
}

}  // namespace
}  // namespace quill
