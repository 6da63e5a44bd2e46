#include "appointments/ui/AppointmentRowList.h"

#include <QKeyEvent>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class AppointmentRowListTest : public test::ScreenFixture {
 protected:
  AppointmentRowListTest() {
    m_list.setGeometry(0, 0, 240, 270);
    m_list.ShowForm({.Subject = QStringLiteral("(Kim)"),
                     .Start = {QDate(2004, 2, 3), QTime(9, 0)},
                     .End = {QDate(2004, 2, 3), QTime(9, 0)}});
    m_list.Chosen = [this](auto row) { m_chosen.push_back(row); };
    m_frame.show();
    m_list.show();
  }

  QPoint OnRow(AppointmentRow row) {
    return m_list.mapTo(m_screen, AppointmentRowArea(row).center());
  }
  QPoint At(int y) { return m_list.mapTo(m_screen, QPoint(100, y)); }

  test::SampleFrame m_frame{*m_screen};
  CAppointmentRowList m_list{QStringLiteral("Appointment"), &m_frame};
  std::vector<std::optional<AppointmentRow>> m_chosen;
};

using Rows = std::vector<std::optional<AppointmentRow>>;

TEST_F(AppointmentRowListTest, ATapChoosesItsRow) {
  m_input.Tap(OnRow(AppointmentRow::Alarm));
  m_input.Tap(OnRow(AppointmentRow::Alarm));
  EXPECT_EQ(m_chosen, Rows({AppointmentRow::Alarm, AppointmentRow::Alarm}));
}

TEST_F(AppointmentRowListTest, TapsAboveTheRowsAreIgnoredAndThoseBelowChooseNone) {
  m_input.Tap(At(64));
  EXPECT_TRUE(m_chosen.empty());
  m_input.Tap(At(226));
  EXPECT_EQ(m_chosen, Rows({std::nullopt}));
}

TEST_F(AppointmentRowListTest, APenThatLeavesTheRowChoosesNothing) {
  m_input.Press(OnRow(AppointmentRow::Start));
  m_input.Move(OnRow(AppointmentRow::End));
  m_input.Release(OnRow(AppointmentRow::End));
  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(AppointmentRowListTest, TheCurrentRowShowsWithTheFocusAlone) {
  EXPECT_EQ(m_list.CurrentRow(), -1);
  m_list.setFocus();
  EXPECT_EQ(m_list.CurrentRow(), 0);
  m_list.clearFocus();
  EXPECT_EQ(m_list.CurrentRow(), -1);
}

struct KeyCase {
  std::vector<int> Keys;
  int Current;
};

class AppointmentRowKeys : public AppointmentRowListTest,
                           public testing::WithParamInterface<KeyCase> {};

TEST_P(AppointmentRowKeys, MoveTheCurrentRow) {
  m_list.setFocus();
  for (const int key : GetParam().Keys) m_input.Key(key);
  EXPECT_EQ(m_list.CurrentRow(), GetParam().Current);
}

INSTANTIATE_TEST_SUITE_P(All, AppointmentRowKeys,
                         testing::Values(KeyCase{{Qt::Key_Down}, 1}, KeyCase{{Qt::Key_Up}, 0},
                                         KeyCase{{Qt::Key_End}, 7},
                                         KeyCase{{Qt::Key_End, Qt::Key_Down}, 7},
                                         KeyCase{{Qt::Key_End, Qt::Key_Up}, 6},
                                         KeyCase{{Qt::Key_End, Qt::Key_Home}, 0}));

TEST_F(AppointmentRowListTest, ReturnEnterAndTheSpaceBarChooseTheCurrentRow) {
  m_list.setFocus();
  m_input.Key(Qt::Key_Down);
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) m_input.Key(key);
  EXPECT_EQ(m_chosen, Rows(3, AppointmentRow::Start));
}

TEST_F(AppointmentRowListTest, ReturnWithCtrlIsNotTheRows) {
  m_list.setFocus();
  m_input.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(AppointmentRowListTest, AHeldKeyChoosesOnce) {
  m_list.setFocus();
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  QCoreApplication::sendEvent(&m_list, &repeated);
  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(AppointmentRowListTest, AssistiveTechnologyChoosesRowsButNotTheHeading) {
  m_list.ActivateRow(7);
  m_list.ActivateRow(8);
  m_list.ActivateRow(-1);
  EXPECT_EQ(m_chosen, Rows({AppointmentRow::Memo}));
  EXPECT_EQ(m_list.Rows().at(8).SpokenName, QStringLiteral("Appointment"));
}

}  // namespace
}  // namespace quill
