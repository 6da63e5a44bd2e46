#include "platform/ui/MultiEdit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QUrl>

#include "platform/ui/Edit.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class MultiEditTest : public test::ScreenFixture {
 protected:
  MultiEditTest() : m_edit(QStringLiteral("one\ntwo"), &m_frame) {
    m_edit.setGeometry(10, 10, 120, 47);
    m_edit.show();
    m_edit.setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("Lee"));
  }

  void AskForMenu(QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    QWidget& area = *m_edit.viewport();
    QContextMenuEvent event(reason, {5, 5}, area.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&area, &event);
  }
  void Choose(int id) {
    const Steps steps(*m_screen, {[this, id] {
      if (!m_screen->Popup()->Choose(id)) m_screen->Popup()->Dismiss();
    }});
    AskForMenu();
  }
  void Paste(QMimeData* data) {
    QGuiApplication::clipboard()->setMimeData(data);
    m_edit.selectAll();
    m_edit.paste();
  }

  test::SampleFrame m_frame{*m_screen};
  CMultiEdit m_edit;
};

TEST_F(MultiEditTest, HoldsSeveralLines) {
  EXPECT_EQ(m_edit.toPlainText(), QStringLiteral("one\ntwo"));
  m_edit.moveCursor(QTextCursor::End);
  m_input.Key(Qt::Key_Return);
  m_input.Type(QStringLiteral("three"));
  EXPECT_EQ(m_edit.toPlainText(), QStringLiteral("one\ntwo\nthree"));
}

// What the window around it is left of the keys.
class KeysLeft : public test::SampleFrame {
 public:
  using SampleFrame::SampleFrame;
  QList<int> Keys;

 protected:
  void keyPressEvent(QKeyEvent* event) override { Keys.append(event->key()); }
};

class MultiEditKeysTest : public test::ScreenFixture {
 protected:
  MultiEditKeysTest() {
    m_edit.setGeometry(10, 10, 120, 47);
    m_edit.show();
    m_edit.setFocus();
  }

  KeysLeft m_frame{*m_screen};
  CMultiEdit m_edit{QStringLiteral("one\ntwo"), &m_frame};
};

TEST_F(MultiEditKeysTest, UpInTheFirstLineAndDownInTheLastOneAreTheWindows) {
  m_input.Key(Qt::Key_Down);
  EXPECT_EQ(m_edit.textCursor().blockNumber(), 1);
  EXPECT_EQ(m_frame.Keys, QList<int>());
  m_input.Key(Qt::Key_Down);
  EXPECT_EQ(m_frame.Keys, QList<int>({Qt::Key_Down}));
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_edit.textCursor().blockNumber(), 0);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_frame.Keys, QList<int>({Qt::Key_Down, Qt::Key_Up}));
}

TEST_F(MultiEditKeysTest, ALineThatIsBrokenIsLeftAtItsEnds) {
  m_edit.setPlainText(QStringLiteral("a line that is too long for the width of the editor"));
  m_input.Key(Qt::Key_Down);
  EXPECT_EQ(m_frame.Keys, QList<int>());
  EXPECT_GT(m_edit.textCursor().position(), 0);
  m_edit.moveCursor(QTextCursor::End);
  m_input.Key(Qt::Key_Down);
  EXPECT_EQ(m_frame.Keys, QList<int>({Qt::Key_Down}));
}

TEST_F(MultiEditKeysTest, WithShiftTheySelectAndOfAReadOnlyTextNoneIsLeft) {
  m_input.Key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(m_frame.Keys, QList<int>());
  m_edit.setReadOnly(true);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_frame.Keys, QList<int>());
}

QColor FrameColor(QWidget& edit) {
  const QImage image = edit.grab().toImage();
  return image.pixelColor(image.width() / 2, 0);
}

TEST_F(MultiEditTest, ItsFrameShowsTheFocusAsALineEditorsDoes) {
  CEdit line(QString(), &m_frame);
  line.setGeometry(10, 70, 120, 19);
  line.show();
  for (const bool isReadOnly : {false, true}) {
    m_edit.setReadOnly(isReadOnly);
    line.setFocus();
    const QColor focused = FrameColor(line);
    EXPECT_EQ(FrameColor(m_edit).saturation(), 0) << "grey";
    m_edit.setFocus();
    EXPECT_EQ(FrameColor(m_edit), focused);
    EXPECT_NE(focused.saturation(), 0);
  }
}

TEST_F(MultiEditTest, ItsMenuOffersWhatCanBeDone) {
  const auto enabledItems = [this] {
    std::vector<bool> enabled;
    const Steps steps(*m_screen, {[&] {
      for (const MenuItem& item : m_screen->Popup()->Items())
        if (!item.Separator) enabled.push_back(item.Enabled);
      m_screen->Popup()->Dismiss();
    }});
    AskForMenu();
    return enabled;
  };
  EXPECT_EQ(enabledItems(), (std::vector<bool>{false, false, true, true}));
  m_edit.selectAll();
  EXPECT_EQ(enabledItems(), (std::vector<bool>{true, true, true, true}));
  m_edit.clear();
  EXPECT_EQ(enabledItems(), (std::vector<bool>{false, false, true, false}));
}

TEST_F(MultiEditTest, ItsMenuWorks) {
  Choose(EditMenuIds::kSelectAll);
  EXPECT_TRUE(m_edit.textCursor().hasSelection());
  Choose(EditMenuIds::kCopy);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
  Choose(EditMenuIds::kCut);
  EXPECT_EQ(m_edit.toPlainText(), QString());
  Choose(EditMenuIds::kPaste);
  EXPECT_EQ(m_edit.toPlainText(), QStringLiteral("one\ntwo"));
}

TEST_F(MultiEditTest, ItsMenuOpensUnderThePen) {
  QRect place;
  const Steps steps(*m_screen, {[&] {
    place = m_screen->Popup()->geometry();
    m_screen->Popup()->Dismiss();
  }});
  AskForMenu();
  EXPECT_EQ(place.topLeft(), m_edit.viewport()->mapTo(m_screen, QPoint(5, 5)));
}

TEST_F(MultiEditTest, TheMenuKeyOpensTheMenuOnce) {
  int opened = 0;
  const Steps steps(*m_screen, {[&] {
    ++opened;
    m_screen->Popup()->Dismiss();
  }});
  AskForMenu(QContextMenuEvent::Keyboard);  // some platforms send it beside the key
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(opened, 1);
}

TEST_F(MultiEditTest, TabLeavesIt) {
  test::SampleDialog dialog(*m_screen);
  CMultiEdit edit(QStringLiteral("x"), &dialog);
  edit.show();
  const Steps steps(*m_screen, {[&] { edit.setFocus(); }, [this] { m_input.Key(Qt::Key_Tab); },
                                [&] {
                                  EXPECT_FALSE(edit.hasFocus());
                                  EXPECT_EQ(edit.toPlainText(), QStringLiteral("x"));
                                },
                                [this] { m_input.Key(Qt::Key_Escape); }});
  dialog.DoModal();
}

TEST_F(MultiEditTest, ReturnInItDoesNotEndTheDialogButEscapeDoes) {
  test::SampleDialog dialog(*m_screen);
  CMultiEdit edit(QStringLiteral("x"), &dialog);
  edit.show();
  const Steps steps(*m_screen, {[&] { edit.setFocus(); }, [this] { m_input.Key(Qt::Key_Return); },
                                [this] { m_input.Key(Qt::Key_Escape); }});
  EXPECT_EQ(dialog.DoModal(), kResultCancel);
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("\nx"));
}

TEST_F(MultiEditTest, OfRichTextOnlyTheTextIsPasted) {
  auto* const data = new QMimeData;  // the clipboard's
  data->setHtml(QStringLiteral("<p><b>bold</b> and<br>not</p>"));
  Paste(data);
  EXPECT_EQ(m_edit.toPlainText(), QStringLiteral("bold and\nnot"));
  m_edit.selectAll();
  EXPECT_FALSE(m_edit.textCursor().charFormat().font().bold());
}

TEST_F(MultiEditTest, ThePlainFormIsTakenWhereThereIsOne) {
  auto* const data = new QMimeData;  // the clipboard's
  data->setHtml(QStringLiteral("<b>rich</b>"));
  data->setText(QStringLiteral("plain"));
  Paste(data);
  EXPECT_EQ(m_edit.toPlainText(), QStringLiteral("plain"));
}

TEST_F(MultiEditTest, FilesAreNotDroppedHere) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.vcf"))});
  QDragEnterEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  event.ignore();
  QCoreApplication::sendEvent(m_edit.viewport(), &event);
  EXPECT_FALSE(event.isAccepted());
}

TEST_F(MultiEditTest, ItsBarIsThereOnlyWhenTheTextDoesNotFit) {
  QCoreApplication::processEvents();
  EXPECT_FALSE(m_edit.verticalScrollBar()->isVisible());
  m_edit.setPlainText(QStringLiteral("1\n2\n3\n4\n5\n6"));
  QCoreApplication::processEvents();
  EXPECT_TRUE(m_edit.verticalScrollBar()->isVisible());
  EXPECT_EQ(m_edit.verticalScrollBar()->width(), 13);
}

TEST_F(MultiEditTest, LongLinesAreWrappedAndNeverScrollSideways) {
  m_edit.setPlainText(QStringLiteral("a rather long line that does not fit, and more of it"));
  m_edit.setLineWrapMode(QPlainTextEdit::NoWrap);
  QCoreApplication::processEvents();
  EXPECT_FALSE(m_edit.horizontalScrollBar()->isVisible());
}

}  // namespace
}  // namespace quill
