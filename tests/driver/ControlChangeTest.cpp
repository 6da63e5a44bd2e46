#include "driver/ControlChange.h"

#include <QLineEdit>

#include "platform/ui/CheckList.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill::driver {
namespace {

class ControlChangeTest : public test::ScreenFixture {
 protected:
  ControlChangeTest() {
    m_list.SetItems({{QStringLiteral("Work"), true}, {QStringLiteral("Club")}});
    m_list.show();
  }

  // False when the control cannot take the change.
  bool Set(int index, bool checked) {
    const auto change = PrepareChange(
        m_list, {{QStringLiteral("index"), index}, {QStringLiteral("checked"), checked}});
    if (change) (*change)();
    return change.has_value();
  }
  std::vector<bool> Checks() const {
    return {m_list.Items()[0].Checked, m_list.Items()[1].Checked};
  }

  test::SampleFrame m_frame{*m_screen};
  CCheckList m_list{QStringLiteral("Choice"), &m_frame};
};

TEST_F(ControlChangeTest, ARowOfACheckListIsCheckedAndUnchecked) {
  EXPECT_TRUE(Set(1, true));
  EXPECT_EQ(Checks(), (std::vector<bool>{true, true}));
  EXPECT_EQ(m_list.CurrentRow(), 1);
  EXPECT_TRUE(m_list.hasFocus());
  EXPECT_TRUE(Set(0, false));
  EXPECT_EQ(Checks(), (std::vector<bool>{false, true}));
}

TEST_F(ControlChangeTest, ARowThatIsAsItShallBeIsMadeCurrent) {
  EXPECT_TRUE(Set(0, true));
  EXPECT_EQ(Checks(), (std::vector<bool>{true, false}));
  EXPECT_EQ(m_list.CurrentRow(), 0);
}

TEST_F(ControlChangeTest, ARowThatACheckListDoesNotHaveIsRefused) {
  EXPECT_FALSE(Set(2, true));
  EXPECT_FALSE(Set(-1, true));
}

TEST_F(ControlChangeTest, OtherControlsHaveNoRowsToCheck) {
  QLineEdit edit(&m_frame);
  EXPECT_FALSE(
      PrepareChange(edit, {{QStringLiteral("index"), 0}, {QStringLiteral("checked"), true}})
          .has_value());
}

}  // namespace
}  // namespace quill::driver
