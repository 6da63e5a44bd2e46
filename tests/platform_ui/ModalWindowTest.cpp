#include "platform/ui/ModalWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <set>

#include "platform/ui/MessageBox.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::SampleDialog;
using test::Step;
using test::Steps;

class ModalWindowTest : public test::ScreenFixture {
 protected:
  ModalWindowTest() : m_frame(*m_screen), m_below(new QPushButton(&m_frame)), m_dialog(*m_screen) {
    m_below->setGeometry(10, 10, 60, 20);
    m_below->show();
  }

  int Run(std::vector<Step> steps) { return Run(m_dialog, std::move(steps)); }
  int Run(CModalWindow& window, std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return window.DoModal();
  }
  Step Keys(int key) {
    return [this, key] { m_input.Key(key); };
  }

  test::SampleFrame m_frame;
  QPushButton* m_below;  // in the frame, under a small dialog's shade
  SampleDialog m_dialog;
};

TEST_F(ModalWindowTest, ReturnsTheResultThatItWasEndedWith) {
  EXPECT_EQ(Run({[this] { m_dialog.EndDialog(4711); }}), 4711);
}

TEST_F(ModalWindowTest, StandsOnTopWhileItRunsAndIsGoneAfterwards) {
  Run({[this] {
    EXPECT_EQ(m_screen->Topmost(), &m_dialog);
    EXPECT_TRUE(m_dialog.isVisible());
    EXPECT_EQ(WidgetAt(m_dialog.geometry().topLeft() + QPoint(5, 5)), &m_dialog);
    m_dialog.EndDialog(kResultOK);
  }});
  EXPECT_EQ(m_screen->Topmost(), &m_frame);
  EXPECT_FALSE(m_dialog.isVisible());
}

TEST_F(ModalWindowTest, CanRunAgain) {
  EXPECT_EQ(Run({[this] { m_dialog.EndDialog(1); }}), 1);
  EXPECT_EQ(Run({[this] { m_dialog.EndDialog(2); }}), 2);
}

TEST_F(ModalWindowTest, FocusGoesBackWhereItWas) {
  m_below->setFocus();
  Run({[this] { EXPECT_TRUE(m_dialog.Control(test::kFirstEdit)->hasFocus()); },
       [this] { m_dialog.EndDialog(kResultOK); }});
  EXPECT_TRUE(m_below->hasFocus());
}

TEST_F(ModalWindowTest, WhatLiesBelowTakesNoPen) {
  bool clicked = false;
  QObject::connect(m_below, &QPushButton::clicked, m_below, [&clicked] { clicked = true; });
  const QPoint place = m_below->mapTo(m_screen, m_below->rect().center());
  Run({[this, place] { m_input.Tap(place); }, [this] { m_dialog.EndDialog(kResultOK); }});
  EXPECT_FALSE(clicked);
  m_input.Tap(place);
  EXPECT_TRUE(clicked);
}

class TabTest : public ModalWindowTest, public testing::WithParamInterface<Qt::Key> {};

TEST_P(TabTest, GoesRoundTheControlsThatShowAndNeverLeavesTheDialog) {
  std::vector<Step> steps;
  std::multiset<QWidget*> visited;
  for (int i = 0; i < 2 * 6; ++i) {
    steps.push_back(Keys(GetParam()));
    steps.push_back([&visited] { visited.insert(QApplication::focusWidget()); });
  }
  steps.push_back([this] { m_dialog.EndDialog(kResultOK); });
  Run(std::move(steps));
  for (const int id : {test::kFirstEdit, test::kSecondEdit, test::kSampleCheck, test::kSampleList,
                       kResultOK, kResultCancel})
    EXPECT_EQ(visited.count(m_dialog.Control(id)), 2U) << id;
  EXPECT_EQ(visited.size(), 12U);
}

INSTANTIATE_TEST_SUITE_P(Directions, TabTest, testing::Values(Qt::Key_Tab, Qt::Key_Backtab));

TEST_F(ModalWindowTest, EscapeCancels) { EXPECT_EQ(Run({Keys(Qt::Key_Escape)}), kResultCancel); }

TEST_F(ModalWindowTest, ReturnInAnEditorAccepts) {
  EXPECT_EQ(Run({Keys(Qt::Key_Return)}), kResultOK);
}

TEST_F(ModalWindowTest, ReturnOnAButtonPressesThatButton) {
  EXPECT_EQ(Run({[this] { m_dialog.Control(kResultCancel)->setFocus(); }, Keys(Qt::Key_Enter)}),
            kResultCancel);
}

TEST_F(ModalWindowTest, ButtonsNamedOKAndCancelEndTheDialog) {
  for (const int id : {kResultOK, kResultCancel}) {
    const auto tap = [this, id] {
      QWidget* const button = m_dialog.Control(id);
      m_input.Tap(button->mapTo(m_screen, button->rect().center()));
    };
    EXPECT_EQ(Run({tap}), id);
  }
}

TEST_F(ModalWindowTest, OneThatEndsInItsInitialisationDoesNotWait) {
  m_dialog.Initialised = [this] { m_dialog.EndDialog(kResultYes); };
  EXPECT_EQ(m_dialog.DoModal(), kResultYes);
  EXPECT_EQ(m_screen->Topmost(), &m_frame);
  EXPECT_FALSE(m_dialog.isVisible());
}

TEST_F(ModalWindowTest, OneOpenedFromAnotherReturnsFirst) {
  SampleDialog upper(*m_screen);
  int upperResult = 0;
  EXPECT_EQ(Run({[&] { upperResult = upper.DoModal(); },
                 [&] {
                   EXPECT_EQ(m_screen->Topmost(), &upper);
                   upper.EndDialog(kResultNo);
                 },
                 [&] {
                   EXPECT_EQ(m_screen->Topmost(), &m_dialog);
                   EXPECT_EQ(upperResult, kResultNo);
                   m_dialog.EndDialog(kResultYes);
                 }}),
            kResultYes);
}

TEST_F(ModalWindowTest, WhileClosingItReturnsCancelAtOnceAndShowsNothing) {
  bool initialised = false;
  m_dialog.Initialised = [&initialised] { initialised = true; };
  m_screen->CloseAll();
  EXPECT_EQ(m_dialog.DoModal(), kResultCancel);
  EXPECT_FALSE(initialised);
  EXPECT_FALSE(m_dialog.isVisible());
  EXPECT_EQ(m_screen->Windows().size(), 1U);
}

TEST_F(ModalWindowTest, AHundredDialogsLeaveNoWidgetBehind) {
  const auto runOne = [this](int number) {
    SampleDialog dialog(*m_screen, number % 2 ? test::FullScreenSample() : test::SmallSample());
    const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_Escape); }});
    dialog.DoModal();
    CMessageBox box(*m_screen, {.Text = QString::number(number)});
    const Steps boxSteps(*m_screen, {[this] { m_input.Key(Qt::Key_Return); }});
    box.DoModal();
  };
  runOne(0);
  const auto before = QApplication::allWidgets().size();
  for (int i = 0; i < 100; ++i) runOne(i);
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

TEST_F(ModalWindowTest, WhereNothingHadTheFocusBeforeNothingHasItAfterwards) {
  ASSERT_EQ(m_outer->focusWidget(), nullptr);
  Run({[this] { EXPECT_NE(m_outer->focusWidget(), nullptr); }, Keys(Qt::Key_Escape)});
  EXPECT_EQ(m_outer->focusWidget(), nullptr);
}

TEST_F(ModalWindowTest, ATapOnItsGroundLeavesTheFocusWhereItIs) {
  Run({[this] {
    QWidget* const editor = m_dialog.Control(test::kSecondEdit);
    editor->setFocus();
    m_input.Tap(m_dialog.geometry().bottomRight() - QPoint(5, 5));
    EXPECT_TRUE(editor->hasFocus());
    m_input.Key(Qt::Key_Escape);
  }});
}

TEST_F(ModalWindowTest, OneWithoutControlsTakesKeysToo) {
  SampleDialog bare(*m_screen, {1, u"Bare", {10, 40, 100, 80}, {}});
  EXPECT_EQ(Run(bare, {Keys(Qt::Key_Return)}), kResultOK);
}

TEST_F(ModalWindowTest, FocusGoesBackThoughTheDesktopsFocusIsElsewhere) {
  test::SampleFrame frame(*m_screen);
  QLineEdit editor(&frame);
  editor.show();
  editor.setFocus();
  QWidget elsewhere;
  elsewhere.show();
  elsewhere.activateWindow();
  QCoreApplication::processEvents();
  ASSERT_FALSE(m_outer->isActiveWindow());
  test::SampleDialog dialog(*m_screen);
  {
    const test::Steps steps(*m_screen,
                            {[this] { m_outer->activateWindow(); }, [&] { dialog.EndDialog(1); }});
    dialog.DoModal();
  }
  m_outer->activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(m_outer->focusWidget(), &editor);
}

}  // namespace
}  // namespace quill
