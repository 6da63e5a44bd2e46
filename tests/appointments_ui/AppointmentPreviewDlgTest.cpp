#include "appointments/ui/AppointmentPreviewDlg.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "appointments/ui/AppointmentPreviewFace.h"
#include "ink/ui/InkX.h"
#include "memo/MemoState.h"
#include "platform/Services.h"
#include "platform/ui/RowPainter.h"
#include "platform_ui/AccessibleChild.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/AppointmentIds.h"
#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

constexpr int kModifyResult = AppointmentPreviewIds::kModifyResult;
constexpr int kDeleteResult = AppointmentPreviewIds::kDeleteResult;
constexpr QPoint kOnModify{225, kTitleBarHeight + 25};  // of the screen
constexpr QPoint kOnDelete{225, kTitleBarHeight + 48};
constexpr QPoint kOnText{50, kTitleBarHeight + 25};
const QByteArray kNote = "a note of another make";

class AppointmentPreviewDlgTest : public test::ScreenFixture {
 protected:
  AppointmentPreviewDlgTest() {
    CloseSession();
    g_memo = {};
    g_services.Clock = &m_clock;
  }
  ~AppointmentPreviewDlgTest() override {
    CloseSession();
    g_memo = {};
    g_services.Clock = nullptr;
  }

  void SetUp() override {
    ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
    ASSERT_TRUE(PutAppointmentInk(m_item, kNote));
    ASSERT_TRUE(SaveAppointment(m_item));
  }

  int Run(std::vector<test::Step> steps) {
    CAppointmentPreviewDlg dialog(*m_screen, m_item.Id);
    const test::Steps running(*m_screen, std::move(steps));
    return dialog.DoModal();
  }
  // The preview on top; else the test ends in a crash.
  CAppointmentPreviewDlg& Preview() const {
    return dynamic_cast<CAppointmentPreviewDlg&>(*m_screen->Topmost());
  }
  InkX& Ink() const { return *Preview().findChild<InkX*>(); }
  CAppointmentPreviewFace& Face() const { return *Preview().findChild<CAppointmentPreviewFace*>(); }
  QStringList Spoken() const {
    QStringList names;
    for (const PaintedRow& row : Face().Rows()) names.append(row.SpokenName);
    return names;
  }
  // The ground of a button as it is painted now.
  std::optional<Rgb> Ground(int command) const {
    for (const PaintedRow& row : Face().Rows())
      if (row.Key == command) return row.Items[1].Fill;
    return std::nullopt;
  }
  QRgb Pixel(QPoint at) const { return Preview().grab().toImage().pixel(at); }

  test::Step Cancel() {
    return [this] { m_screen->Topmost()->OnCancel(); };
  }
  test::Step Tap(QPoint at) {
    return [this, at] { m_input.Tap(at); };
  }
  test::Step Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [this, key, modifiers] { m_input.Key(key, modifiers); };
  }

  PimStore m_store{QStringLiteral(":memory:")};
  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  AppointmentItem m_item{.Subject = QStringLiteral("(김철수) 차 마시기"),
                         .Start = MakeCalendarDate({2004, 9, 15}, {10, 0}),
                         .End = MakeCalendarDate({2004, 9, 15}, {11, 30}),
                         .Duration = 90};
};

TEST_F(AppointmentPreviewDlgTest, IsAFullScreenDialogWithoutMenus) {
  EXPECT_EQ(Run({[&] {
                   EXPECT_EQ(Preview().Caption(), QStringLiteral("Memo"));
                   EXPECT_EQ(Preview().Kind(), WindowKind::Dialog);
                   EXPECT_EQ(Preview().geometry(), kClientArea);
                   EXPECT_TRUE(Preview().HasOK());
                   EXPECT_TRUE(Preview().MenuBar().Menus.empty());
                   EXPECT_EQ(Preview().MenuBar().Buttons.size(), 1U);
                 },
                 Cancel()}),
            kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, SaysWhatTheAppointmentIsAboveTheNote) {
  Run({[&] {
         EXPECT_EQ(Face().geometry(), QRect(0, 0, 240, 75));
         EXPECT_EQ(Spoken(), QStringList({QStringLiteral("(김철수) 차 마시기"),
                                          QStringLiteral("2004.09.15(Wed),AM 10:00"),
                                          QStringLiteral("~ 2004.09.15(Wed),AM 11:30"),
                                          QStringLiteral("Modify"), QStringLiteral("Delete")}));
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, ALongSubjectIsShortenedInTheBoldFont) {
  m_item.Subject = QString(60, u'가');
  ASSERT_TRUE(SaveAppointment(m_item));
  Run({[&] {
         const QString shown = Face().Rows()[0].Items[0].Text;
         EXPECT_TRUE(shown.endsWith(QStringLiteral("...")));
         EXPECT_EQ(shown, ShortenText(m_item.Subject, 190, BoldTextWidth()));
         EXPECT_LT(3 + BoldTextWidth()(shown), 217);
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, ShowsTheNoteAsABorderedPageThatCannotBeWrittenOn) {
  Run({[&] {
         EXPECT_EQ(Ink().geometry(), QRect(0, 75, 240, 170));
         EXPECT_TRUE(Ink().readOnly());
         EXPECT_EQ(Ink().Data(), kNote);
         EXPECT_EQ(Ink().PageStyle(), 16);
         EXPECT_EQ(Ink().Zoom(), 100);
         EXPECT_EQ(Ink().Wrap(), 1);
         EXPECT_EQ(Ink().View(), 0);
         EXPECT_EQ(QApplication::focusWidget(), &Ink());
         const QRgb border = Pixel({0, 75});
         EXPECT_EQ(border, qRgb(0x2F, 0x55, 0x68));
         EXPECT_EQ(Pixel({239, 244}), border);
         EXPECT_NE(Pixel({1, 76}), border);
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, APenOnTheNoteGoesThroughItsBorder) {
  Run({[&] {
         EXPECT_EQ(WidgetAt({0, kTitleBarHeight + 75}), &Ink());
         m_input.Press({120, 200});
         m_input.Move({120, 150});
         m_input.Release({120, 150});
         EXPECT_EQ(Ink().Data(), kNote);
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, TheBufferHoldsTheNoteAsLongAsItIsOpen) {
  g_memo.Buffer = "another one";
  {
    CAppointmentPreviewDlg dialog(*m_screen, m_item.Id);
    const test::Steps running(*m_screen, {[&] {
      EXPECT_EQ(g_memo.Buffer, kNote);
      Preview().OnCancel();
    }});
    dialog.DoModal();
  }
  EXPECT_EQ(g_memo.Buffer, QByteArray());
}

TEST_F(AppointmentPreviewDlgTest, AnAppointmentWithoutANoteEmptiesTheBuffer) {
  m_item.BodyInk.clear();
  ASSERT_TRUE(SaveAppointment(m_item));
  g_memo.Buffer = "another one";
  Run({[&] {
         EXPECT_EQ(g_memo.Buffer, QByteArray());
         EXPECT_EQ(Ink().DataLength(), 0);
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, TheNoteIsAsHighAsTheInputPanelLetsIt) {
  m_panel.Raise();
  Run({[&] {
         EXPECT_EQ(Preview().geometry(), m_panel.VisibleArea());
         EXPECT_EQ(Ink().geometry(), QRect(0, 75, 240, m_panel.VisibleArea().height() - 100));
         m_panel.Lower();
         EXPECT_EQ(Ink().geometry(), QRect(0, 75, 240, 170));
         EXPECT_EQ(Pixel({239, 244}), Pixel({0, 75}));
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, ATapOnAButtonEndsItAndChangesNothing) {
  EXPECT_EQ(Run({Tap(kOnModify)}), kModifyResult);
  EXPECT_EQ(Run({Tap(kOnDelete)}), kDeleteResult);
  EXPECT_EQ(OpenAppointment(m_item.Id), m_item);
}

TEST_F(AppointmentPreviewDlgTest, AButtonLooksPressedWhileThePenIsInside) {
  EXPECT_EQ(Run({[&] {
                   const auto normal = Ground(AppointmentPreviewIds::kDelete);
                   m_input.Press(kOnDelete);
                   const auto pressed = Ground(AppointmentPreviewIds::kDelete);
                   EXPECT_NE(pressed, normal);
                   m_input.Move(kOnModify);
                   EXPECT_EQ(Ground(AppointmentPreviewIds::kDelete), normal);
                   EXPECT_EQ(Ground(AppointmentPreviewIds::kModify), normal);
                   m_input.Move(kOnDelete);
                   EXPECT_EQ(Ground(AppointmentPreviewIds::kDelete), pressed);
                   m_input.Release(kOnText);
                   EXPECT_EQ(Ground(AppointmentPreviewIds::kDelete), normal);
                 },
                 Cancel()}),
            kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, APenThatLeavesAButtonOrCameFromElsewhereDoesNothing) {
  EXPECT_EQ(Run({[&] {
                   m_input.Press(kOnModify);
                   m_input.Release(kOnText);
                   m_input.Press(kOnText);
                   m_input.Release(kOnModify);
                   m_input.Press(kOnDelete);
                   m_input.Release({225, 200});
                   m_input.Tap(kOnText);
                 },
                 Cancel()}),
            kResultCancel);
}

struct KeyCase {
  std::vector<int> Keys;
  int Result;
};

class PreviewKeyboard : public AppointmentPreviewDlgTest,
                        public testing::WithParamInterface<KeyCase> {};

TEST_P(PreviewKeyboard, ReachesTheButtonsAndCloses) {
  EXPECT_EQ(Run({[&] {
              for (const int key : GetParam().Keys) m_input.Key(key);
            }}),
            GetParam().Result);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PreviewKeyboard,
    testing::Values(
        KeyCase{{Qt::Key_Escape}, kResultCancel}, KeyCase{{Qt::Key_Return}, kResultCancel},
        KeyCase{{Qt::Key_Tab, Qt::Key_Return}, kModifyResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Enter}, kModifyResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Space}, kModifyResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}, kDeleteResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Down, Qt::Key_Return}, kDeleteResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return}, kModifyResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Left, Qt::Key_Return}, kModifyResult},
        KeyCase{{Qt::Key_Backtab, Qt::Key_Return}, kDeleteResult},
        KeyCase{{Qt::Key_Tab, Qt::Key_Escape}, kResultCancel},
        KeyCase{{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}, kResultCancel}));

TEST_F(AppointmentPreviewDlgTest, TheCurrentButtonIsShownOnlyWithTheFocus) {
  Run({[&] {
         const auto normal = Ground(AppointmentPreviewIds::kModify);
         EXPECT_EQ(Face().CurrentRow(), -1);
         m_input.Key(Qt::Key_Tab);
         EXPECT_EQ(Face().Rows()[Face().CurrentRow()].Key, AppointmentPreviewIds::kModify);
         EXPECT_NE(Ground(AppointmentPreviewIds::kModify), normal);
         m_input.Key(Qt::Key_Backtab);
         EXPECT_EQ(Face().CurrentRow(), -1);
         EXPECT_EQ(QApplication::focusWidget(), &Ink());
         EXPECT_EQ(Ground(AppointmentPreviewIds::kModify), normal);
       },
       Cancel()});
}

TEST_F(AppointmentPreviewDlgTest, ReturnWithCtrlUsesNoButton) {
  EXPECT_EQ(Run({[&] {
              m_input.Key(Qt::Key_Tab);
              m_input.Key(Qt::Key_Down);
              m_input.Key(Qt::Key_Return, Qt::ControlModifier);
            }}),
            kResultCancel)
      << "it is OK, which changes nothing here";
}

TEST_F(AppointmentPreviewDlgTest, AHeldKeyUsesNoButton) {
  EXPECT_EQ(Run({[&] {
                   m_input.Key(Qt::Key_Tab);
                   for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
                     QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
                     QApplication::sendEvent(&Face(), &held);
                   }
                 },
                 Cancel()}),
            kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, AssistiveTechnologyPressesTheButtons) {
  EXPECT_EQ(Run({[&] {
              EXPECT_EQ(test::AccessibleChild(Face(), u"Delete").Role(), QAccessible::PushButton);
              test::AccessibleChild(Face(), u"Modify").Press();
            }}),
            kModifyResult);
  EXPECT_EQ(Run({[&] { test::AccessibleChild(Face(), u"Delete").Press(); }}), kDeleteResult);
}

TEST_F(AppointmentPreviewDlgTest, ATextIsReadOutAndNotPressed) {
  EXPECT_EQ(Run({[&] {
                   const test::AccessibleChild subject(Face(), u"(김철수) 차 마시기");
                   EXPECT_EQ(subject.Role(), QAccessible::StaticText);
                   Face().ActivateRow(0);
                 },
                 Cancel()}),
            kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, ItsCommandsGiveTheResultsOfTheButtons) {
  EXPECT_EQ(Run({[&] { EXPECT_EQ(Preview().RunCommand(1000), CommandResult::Done); }}), 10);
  EXPECT_EQ(Run({[&] { EXPECT_EQ(Preview().RunCommand(1001), CommandResult::Done); }}), 11);
}

TEST_F(AppointmentPreviewDlgTest, TheHiddenButtonsRunTheCommands) {
  const auto hidden = [&](int id) { return qobject_cast<QPushButton*>(Preview().Control(id)); };
  EXPECT_EQ(Run({[&] {
              EXPECT_TRUE(hidden(1000)->isHidden());
              EXPECT_EQ(hidden(1000)->geometry(), QRect(216, 16, 20, 20));
              hidden(1000)->click();
            }}),
            kModifyResult);
  EXPECT_EQ(Run({[&] {
              EXPECT_TRUE(hidden(1001)->isHidden());
              EXPECT_EQ(hidden(1001)->geometry(), QRect(216, 39, 20, 20));
              hidden(1001)->click();
            }}),
            kDeleteResult);
}

TEST_F(AppointmentPreviewDlgTest, OKAndTheProgramsEndAreACancel) {
  EXPECT_EQ(Run({[&] { Preview().OnOK(); }}), kResultCancel);
  EXPECT_EQ(Run({[&] { m_screen->CloseAll(); }}), kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, AnAppointmentThatCannotBeReadIsAnEmptyWindow) {
  ASSERT_TRUE(DeleteAppointment(m_item.Id));
  EXPECT_EQ(Run({[&] {
                   EXPECT_EQ(Preview().Caption(), QStringLiteral("Memo"));
                   EXPECT_EQ(Preview().findChild<InkX*>(), nullptr);
                   EXPECT_EQ(Preview().findChild<CAppointmentPreviewFace*>(), nullptr);
                   m_panel.Raise();
                   m_panel.Lower();
                   m_input.Tap(kOnModify);
                 },
                 Key(Qt::Key_Escape)}),
            kResultCancel);
}

TEST_F(AppointmentPreviewDlgTest, ARecurringOneSpeaksOfItsPattern) {
  m_item.Recurrence = PatternOf(m_item);
  m_item.Recurrence->Interval = 2;
  m_item.Recurrence->DayOfWeekMask = 127;
  ASSERT_TRUE(SaveAppointment(m_item));
  Run({[&] {
         EXPECT_EQ(Spoken().mid(1, 3),
                   QStringList({QStringLiteral("Every 2 week(s) "
                                               "onSun.,Mon.,Tue.,Wed.,Thu.,Fri.,Sat."),
                                QStringLiteral("from 2004.09.15"),
                                QStringLiteral("at AM 10:00 for 1 hour(s)")}));
         const PaintedItem& line = Face().Rows()[1].Items[0];
         EXPECT_LE(NormalTextWidth()(line.Text), line.Rectangle.width());
         EXPECT_LT(line.Rectangle.right(), 212);
       },
       Cancel()});
}

}  // namespace
}  // namespace quill
