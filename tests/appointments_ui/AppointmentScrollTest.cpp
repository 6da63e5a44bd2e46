// How the appointment dialog's rows stay in reach above the input panel.
#include "appointments/AppointmentRows.h"
#include "appointments/ui/AppointmentDlg.h"
#include "appointments_ui/AppointmentDlgFixture.h"

namespace quill {
namespace {

class AppointmentScrollTest : public test::AppointmentDlgFixture {};

TEST_F(AppointmentScrollTest, AboveThePanelTheRowsScrollSoThatEachIsReached) {
  Add({[&] {
         m_panel.Raise();
         EXPECT_EQ(Rows().y(), 0);
         m_input.Key(Qt::Key_End);
         const int visible = m_panel.VisibleArea().height();
         const QRect last = AppointmentRowArea(AppointmentRow::Memo).translated(Rows().pos());
         EXPECT_LE(last.bottom(), visible);
         EXPECT_EQ(Dialog().Control(AppointmentIds::kMemo)->y(), last.top() + 1);
         m_input.Key(Qt::Key_Home);
         EXPECT_GE(AppointmentRowArea(AppointmentRow::Subject).top() + Rows().y(), 0);
       },
       [&] {
         m_input.Key(Qt::Key_End);
         m_panel.Lower();
         EXPECT_EQ(Rows().y(), 0);
       },
       Cancel()});
}

}  // namespace
}  // namespace quill
