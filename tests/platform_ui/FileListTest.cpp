#include "platform/ui/FileList.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

constexpr int kCount = 20;  // of files, after the folder above
constexpr QRect kPlace{0, 10, 200, 4 * kFileRowHeight};

FolderListing Files(int count) {
  FolderListing listing{.Folder = QStringLiteral("/a"),
                        .Entries = {{FolderEntryKind::Parent, QStringLiteral("..")}}};
  for (int i = 1; i <= count; ++i)
    listing.Entries.push_back({FolderEntryKind::File, QStringLiteral("%1.vcf").arg(i)});
  return listing;
}

class FileListTest : public test::ScreenFixture {
 protected:
  FileListTest() : m_frame(*m_screen), m_list(&m_frame) {
    m_list.setGeometry(kPlace);
    m_list.ShowListing(Files(kCount));
    m_list.show();
    m_frame.show();
    m_list.SelectionChanged = [this] { ++m_selections; };
    m_list.OpenAsked = [this] { ++m_opens; };
    m_list.UpAsked = [this] { ++m_ups; };
  }

  QPoint OnRow(const char* name) const { return RowNamed(m_list, QLatin1String(name)).center(); }
  QString SelectedName() const { return m_list.Selected() ? m_list.Selected()->Name : QString(); }
  QString TopName() const { return m_list.Rows().front().SpokenName; }
  void Key(int key) {
    m_list.setFocus();
    m_input.Key(key);
  }

  test::SampleFrame m_frame;
  CFileList m_list;
  int m_selections = 0;
  int m_opens = 0;
  int m_ups = 0;
};

TEST_F(FileListTest, BeginsWithNothingSelected) {
  EXPECT_EQ(m_list.Selected(), nullptr);
  EXPECT_EQ(TopName(), QStringLiteral("Folder above"));
}

TEST_F(FileListTest, ATapSelectsAndASecondOneOpens) {
  m_input.Tap(OnRow("2.vcf"));
  EXPECT_EQ(SelectedName(), QStringLiteral("2.vcf"));
  EXPECT_EQ(m_selections, 1);
  EXPECT_EQ(m_opens, 0);
  EXPECT_TRUE(m_list.hasFocus());
  m_input.Tap(OnRow("2.vcf"));
  EXPECT_EQ(m_opens, 1);
}

TEST_F(FileListTest, ATapOnAnotherEntryOpensNothing) {
  m_input.Tap(OnRow("2.vcf"));
  m_input.Tap(OnRow("3.vcf"));
  EXPECT_EQ(SelectedName(), QStringLiteral("3.vcf"));
  EXPECT_EQ(m_opens, 0);
}

TEST_F(FileListTest, APenThatLeavesTheEntryOpensNothing) {
  m_input.Tap(OnRow("2.vcf"));
  m_input.Press(OnRow("2.vcf"));
  m_input.Move(OnRow("3.vcf"));
  m_input.Release(OnRow("3.vcf"));
  EXPECT_EQ(m_opens, 0);
}

TEST_F(FileListTest, ATapBesideTheEntriesSelectsNothing) {
  m_list.ShowListing(Files(0));
  m_input.Tap(OnRow("There is nothing to choose here."));
  m_input.Tap(OnRow("There is nothing to choose here."));
  m_input.Tap(m_list.mapTo(m_screen, QPoint(5, 4 * kFileRowHeight - 2)));
  EXPECT_EQ(m_list.Selected(), nullptr);
  EXPECT_EQ(m_selections + m_opens, 0);
}

TEST_F(FileListTest, ANewListingBeginsAtItsTopWithTheNamedEntrySelected) {
  Key(Qt::Key_End);
  m_list.ShowListing(Files(3), QStringLiteral("2.vcf"));
  EXPECT_EQ(TopName(), QStringLiteral("Folder above"));
  EXPECT_EQ(SelectedName(), QStringLiteral("2.vcf"));
  m_list.ClearSelection();
  EXPECT_EQ(m_list.Selected(), nullptr);
  EXPECT_EQ(m_list.CurrentRow(), -1);
}

struct KeyCase {
  int Key;
  const char* Selected;
  const char* Top;
};

class FileListKeys : public FileListTest, public testing::WithParamInterface<KeyCase> {};

TEST_P(FileListKeys, MoveTheSelectionAndScrollToIt) {
  m_list.ShowListing(Files(kCount), QStringLiteral("6.vcf"));
  EXPECT_EQ(TopName(), QStringLiteral("3.vcf"));
  Key(GetParam().Key);
  EXPECT_EQ(SelectedName(), QLatin1String(GetParam().Selected));
  EXPECT_EQ(TopName(), QLatin1String(GetParam().Top));
}

INSTANTIATE_TEST_SUITE_P(Keys, FileListKeys,
                         testing::Values(KeyCase{Qt::Key_Up, "5.vcf", "3.vcf"},
                                         KeyCase{Qt::Key_Down, "7.vcf", "4.vcf"},
                                         KeyCase{Qt::Key_PageUp, "2.vcf", "2.vcf"},
                                         KeyCase{Qt::Key_PageDown, "10.vcf", "7.vcf"},
                                         KeyCase{Qt::Key_Home, "..", "Folder above"},
                                         KeyCase{Qt::Key_End, "20.vcf", "17.vcf"}));

TEST_F(FileListTest, KeysStopAtTheEnds) {
  Key(Qt::Key_Down);
  EXPECT_EQ(SelectedName(), QStringLiteral("..")) << "the first one";
  Key(Qt::Key_Up);
  EXPECT_EQ(SelectedName(), QStringLiteral(".."));
  Key(Qt::Key_End);
  Key(Qt::Key_PageDown);
  EXPECT_EQ(SelectedName(), QStringLiteral("20.vcf"));
}

TEST_F(FileListTest, AnEmptyListTakesKeysWithoutASelection) {
  m_list.ShowListing({.Folder = QStringLiteral("/")});
  Key(Qt::Key_Down);
  EXPECT_EQ(m_list.Selected(), nullptr);
  EXPECT_EQ(m_selections, 0);
}

TEST_F(FileListTest, BackspaceAsksForTheFolderAbove) {
  Key(Qt::Key_Backspace);
  EXPECT_EQ(m_ups, 1);
  EXPECT_EQ(m_opens, 0);
}

TEST_F(FileListTest, AScrollBarIsThereOnlyForALongList) {
  EXPECT_TRUE(m_list.ScrollBar().isVisible());
  EXPECT_EQ(m_list.ScrollBar().maximum(), kCount + 1 - 4);
  EXPECT_EQ(m_list.ScrollBar().pageStep(), 4);
  EXPECT_EQ(m_list.ScrollBar().geometry().right(), m_list.rect().right());
  EXPECT_LT(m_list.Rows()[0].Rectangle.right(), m_list.ScrollBar().geometry().left());
  m_list.ShowListing(Files(3));
  EXPECT_FALSE(m_list.ScrollBar().isVisible());
  EXPECT_EQ(m_list.Rows()[0].Rectangle.width(), kPlace.width());
}

TEST_F(FileListTest, TheScrollBarMovesTheListButNotTheSelection) {
  m_input.Tap(OnRow("2.vcf"));
  m_list.ScrollBar().setValue(10);
  EXPECT_EQ(TopName(), QStringLiteral("10.vcf"));
  EXPECT_EQ(SelectedName(), QStringLiteral("2.vcf"));
  m_list.resize(kPlace.width(), 6 * kFileRowHeight);
  EXPECT_EQ(m_list.Rows().size(), 6U);
}

TEST_F(FileListTest, TheWheelScrollsAndStopsAtTheEnds) {
  const auto turn = [this](int angle) {
    QWheelEvent event(QPointF(5, 5), m_list.mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_list, &event);
    EXPECT_TRUE(event.isAccepted());
  };
  turn(-120);
  EXPECT_GT(m_list.ScrollBar().value(), 0);
  turn(1200);
  EXPECT_EQ(m_list.ScrollBar().value(), 0);
}

TEST_F(FileListTest, AssistiveTechnologyOpensARow) {
  m_list.ActivateRow(2);
  EXPECT_EQ(SelectedName(), QStringLiteral("2.vcf"));
  EXPECT_EQ(m_opens, 1);
  m_list.ShowListing(Files(0));
  m_list.ActivateRow(1);  // the note
  EXPECT_EQ(m_opens, 1);
}

}  // namespace
}  // namespace quill
