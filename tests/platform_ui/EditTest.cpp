#include "platform/ui/Edit.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QUrl>

#include <functional>

#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "platform_ui/Steps.h"
#include "resources/Ids.h"

namespace quill {
namespace {

class EditTest : public test::ScreenFixture {
 protected:
  EditTest() : m_frame(*m_screen), m_edit(QStringLiteral("Kim"), &m_frame) {
    m_edit.setGeometry(10, 10, 100, 18);
    m_edit.show();
    m_edit.setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("Lee"));
  }

  void AskForMenu(QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
    QContextMenuEvent event(reason, {5, 5}, m_edit.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&m_edit, &event);
  }
  void Choose(int id) {
    const test::Steps steps(*m_screen, {[this, id] {
      if (!m_screen->Popup()->Choose(id)) m_screen->Popup()->Dismiss();
    }});
    AskForMenu();
  }
  std::vector<bool> EnabledItems() {
    std::vector<bool> enabled;
    const test::Steps steps(*m_screen, {[&] {
      for (const MenuItem& item : m_screen->Popup()->Items())
        if (!item.Separator) enabled.push_back(item.Enabled);
      m_screen->Popup()->Dismiss();
    }});
    AskForMenu();
    return enabled;
  }

  test::SampleFrame m_frame;
  CEdit m_edit;
};

TEST_F(EditTest, ItsMenuOffersWhatCanBeDone) {
  EXPECT_EQ(EnabledItems(), (std::vector<bool>{false, false, true, true}));
  m_edit.selectAll();
  EXPECT_EQ(EnabledItems(), (std::vector<bool>{true, true, true, true}));
  m_edit.setReadOnly(true);
  EXPECT_EQ(EnabledItems(), (std::vector<bool>{false, true, false, true}));
}

TEST_F(EditTest, AnEmptyOneWithAnEmptyClipboardOffersNothing) {
  m_edit.clear();
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(EnabledItems(), (std::vector<bool>{false, false, false, false}));
}

TEST_F(EditTest, CutTakesTheSelectionIntoTheClipboard) {
  m_edit.setSelection(0, 2);
  Choose(EditMenuIds::kCut);
  EXPECT_EQ(m_edit.text(), QStringLiteral("m"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Ki"));
}

TEST_F(EditTest, CopyLeavesTheText) {
  m_edit.selectAll();
  Choose(EditMenuIds::kCopy);
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Kim"));
}

TEST_F(EditTest, PasteReplacesTheSelection) {
  m_edit.selectAll();
  Choose(EditMenuIds::kPaste);
  EXPECT_EQ(m_edit.text(), QStringLiteral("Lee"));
}

struct WayIn {
  const char* Name;
  std::function<void(test::ScreenInput& input, CEdit& edit, const QString& text)> Bring;
};

void DropOn(CEdit& edit, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&edit, &enter);
  QDropEvent event({1000, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&edit, &event);
  EXPECT_TRUE(event.isAccepted());
}

void CommitTo(CEdit& edit, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(&edit, &event);
}

void PasteByKey(test::ScreenInput& input, const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  input.Key(Qt::Key_V, Qt::ControlModifier);
}

class LinesIntoAnEdit : public EditTest, public testing::WithParamInterface<WayIn> {};

TEST_P(LinesIntoAnEdit, AreJoinedByBlanksAndWhatWasThereStays) {
  m_edit.setText(QStringLiteral("Kim\r\nMin"));
  m_edit.end(false);
  GetParam().Bring(m_input, m_edit, QStringLiteral(" a\r\nb\nc\rd\u2028e\u2029f"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim\r\nMin a b c d e f"));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, LinesIntoAnEdit,
    testing::Values(
        WayIn{"PasteKey",
              [](auto& input, CEdit&, const QString& text) { PasteByKey(input, text); }},
        WayIn{"Menu",
              [](auto&, CEdit& edit, const QString& text) {
                QGuiApplication::clipboard()->setText(text);
                PasteLine(edit);
              }},
        WayIn{"Drop", [](auto&, CEdit& edit, const QString& text) { DropOn(edit, text); }},
        WayIn{"InputMethod", [](auto&, CEdit& edit, const QString& text) { CommitTo(edit, text); }},
        WayIn{"Keys",
              [](auto&, CEdit& edit, const QString& text) {
                QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, text);
                QCoreApplication::sendEvent(&edit, &event);
                EXPECT_TRUE(event.isAccepted());
              }}),
    [](const auto& way) { return std::string(way.param.Name); });

TEST_F(EditTest, PastedLinesReplaceTheSelectionAndAreOneStep) {
  m_edit.end(false);
  m_input.Type(QStringLiteral("x"));
  PasteByKey(m_input, QStringLiteral("a\nb"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kimxa b"));
  m_input.Type(QStringLiteral("y"));
  m_edit.undo();
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kimxa b"));
  m_edit.undo();
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kimx"));
  m_edit.selectAll();
  PasteByKey(m_input, QStringLiteral("c\nd"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("c d"));
}

TEST_F(EditTest, ReadOnlyTakesNoLines) {
  m_edit.setReadOnly(true);
  PasteByKey(m_input, QStringLiteral("a\nb"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("Kim"));
}

TEST_F(EditTest, SelectAllSelectsTheWholeText) {
  Choose(EditMenuIds::kSelectAll);
  EXPECT_EQ(m_edit.selectedText(), QStringLiteral("Kim"));
}

TEST_F(EditTest, TheMenuKeyOpensTheMenuOnce) {
  int opened = 0;
  const test::Steps steps(*m_screen, {[&] {
    ++opened;
    m_screen->Popup()->Dismiss();
  }});
  AskForMenu(QContextMenuEvent::Keyboard);  // some platforms send it beside the key
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(opened, 1);
}

TEST_F(EditTest, TakesDroppedTextsButNoFiles) {
  QMimeData data;
  const auto isWelcome = [&] {
    QDragEnterEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(&m_edit, &event);
    return event.isAccepted();
  };
  data.setText(QStringLiteral("a"));
  EXPECT_TRUE(isWelcome());
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.vcf"))});
  EXPECT_FALSE(isWelcome());
}

}  // namespace
}  // namespace quill
