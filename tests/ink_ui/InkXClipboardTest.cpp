// Ink and text by way of the clipboard.
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "ink/InkFormat.h"
#include "ink_ui/InkFixture.h"

namespace quill {
namespace {

class InkXClipboardTest : public test::InkFixture {
 protected:
  InkXClipboardTest() { QGuiApplication::clipboard()->setMimeData(new QMimeData); }

  static const QMimeData& Held() { return *QGuiApplication::clipboard()->mimeData(); }
  QPoint FirstPoint(std::size_t stroke) const {
    const InkPoint& point = Note().Strokes.at(stroke)->Points.front();
    return QPoint(point.X, point.Y) / 32;
  }
};

TEST_F(InkXClipboardTest, InkIsCopiedInItsOwnFormAndAsPictures) {
  Line({20, 30}, {120, 40});
  Ink().SelectAll();
  Ink().Copy();
  const InkNote held = ReadInk(Held().data(QStringLiteral("application/x-inkx"))).Note;
  ASSERT_EQ(held.Strokes.size(), 1u);
  EXPECT_EQ(*held.Strokes.front(), *Note().Strokes.front());
  EXPECT_TRUE(Held().hasFormat(QStringLiteral("image/svg+xml")));
  EXPECT_TRUE(Held().hasFormat(QStringLiteral("image/png")));
}

TEST_F(InkXClipboardTest, NothingSelectedCopiesNothing) {
  Line({20, 30}, {120, 40});
  Ink().Copy();
  EXPECT_TRUE(Held().formats().isEmpty());
  EXPECT_FALSE(Ink().CanPaste());
}

TEST_F(InkXClipboardTest, ThePictureIsTwiceAsLargeAsTheInk) {
  Line({20, 30}, {120, 40});
  Ink().SelectAll();
  Ink().Copy();
  const QImage picture = QImage::fromData(Held().data(QStringLiteral("image/png")));
  EXPECT_NEAR(picture.width(), 2 * 100, 20);
  EXPECT_NEAR(picture.height(), 2 * 10, 20);
  EXPECT_TRUE(Held().data(QStringLiteral("image/svg+xml")).contains("<path"));
}

TEST_F(InkXClipboardTest, TextIsCopiedAsTextToo) {
  Type(QStringLiteral("Kim <Lee>"));
  Ink().SelectAll();
  Ink().Copy();
  EXPECT_EQ(Held().text(), QStringLiteral("Kim <Lee>"));
  EXPECT_FALSE(Held().hasFormat(QStringLiteral("image/png")));
}

TEST_F(InkXClipboardTest, CutTakesWhatItCopies) {
  Line({20, 30}, {120, 40});
  Type(QStringLiteral("Kim"));
  Ink().SelectAll();
  Ink().Cut();
  EXPECT_EQ(Ink().DataLength(), 0);
  Ink().Paste();
  EXPECT_EQ(Text(), QStringLiteral("Kim"));
  EXPECT_EQ(Note().Strokes.size(), 1u);
}

TEST_F(InkXClipboardTest, PastedInkLandsAtTheLastTapAndMovesOnWithEachRepeat) {
  Line({20, 30}, {120, 40});
  Ink().SelectAll();
  Ink().Copy();
  Ink().SetToggle(kInkPenSelects);
  Tap({60, 150});
  Ink().Paste();
  EXPECT_EQ(FirstPoint(1), QPoint(60, 150));
  Ink().Paste();
  EXPECT_EQ(FirstPoint(2), QPoint(68, 158));
  Tap({30, 200});
  Ink().Paste();
  EXPECT_EQ(FirstPoint(3), QPoint(30, 200));
}

TEST_F(InkXClipboardTest, PastedInkStaysSelected) {
  Line({20, 30}, {120, 40});
  Ink().SelectAll();
  Ink().Copy();
  Ink().Paste();
  EXPECT_TRUE(Ink().HasSelection());
  Ink().Clear();
  EXPECT_EQ(FirstPoint(0), QPoint(20, 30));
  EXPECT_EQ(Note().Strokes.size(), 1u);
}

TEST_F(InkXClipboardTest, InkIsPastedInTheMiddleOfTheViewWhenNothingWasTapped) {
  Line({20, 30}, {120, 40});
  Ink().SelectAll();
  Ink().Copy();
  Ink().SetData({});
  Ink().Paste();
  EXPECT_EQ(FirstPoint(0), QPoint(120, 124));
}

TEST_F(InkXClipboardTest, PastingIsOneStep) {
  Line({20, 30}, {120, 40});
  Type(QStringLiteral("Kim"));
  Ink().SelectAll();
  Ink().Copy();
  Ink().SetData({});
  Ink().Paste();
  Ink().Undo();
  EXPECT_FALSE(Ink().CanUndo());
  EXPECT_EQ(Ink().DataLength(), 0);
}

TEST_F(InkXClipboardTest, TextOfOtherProgramsIsTypedAtTheCaret) {
  Type(QStringLiteral("AB"));
  Key(Qt::Key_Left);
  QGuiApplication::clipboard()->setText(QStringLiteral("1\r\n2"));
  Ink().Paste();
  EXPECT_EQ(Text(), QStringLiteral("A1\n2B"));
}

TEST_F(InkXClipboardTest, OwnFormThatIsDamagedBeyondUseGivesWayToText) {
  auto* const held = new QMimeData;
  held->setData(QStringLiteral("application/x-inkx"), "no ink");
  held->setText(QStringLiteral("text"));
  QGuiApplication::clipboard()->setMimeData(held);
  Ink().Paste();
  EXPECT_EQ(Text(), QStringLiteral("text"));
}

TEST_F(InkXClipboardTest, PicturesOfOtherProgramsAreNotPasted) {
  QGuiApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
  EXPECT_FALSE(Ink().CanPaste());
  Ink().Paste();
  EXPECT_EQ(Ink().DataLength(), 0);
}

}  // namespace
}  // namespace quill
