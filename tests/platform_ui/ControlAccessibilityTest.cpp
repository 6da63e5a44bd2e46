#include "platform/ui/ControlAccessibility.h"

#include <QAccessible>
#include <QLineEdit>

#include "platform/ui/DatePicker.h"
#include "platform/ui/MenuPopup.h"
#include "platform/ui/PictureLabel.h"
#include "platform/ui/TypedDropDown.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::Steps;

class ControlAccessibilityTest : public test::ScreenFixture {
 protected:
  static QAccessibleInterface& Spoken(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
  }

  test::SampleFrame m_frame{*m_screen};
};

TEST_F(ControlAccessibilityTest, ADropDownHasItsNameAndItsChoice) {
  CDropDown list(*m_screen, &m_frame);
  list.setAccessibleName(QStringLiteral("Fruit"));
  list.addItems({QStringLiteral("Apple"), QStringLiteral("Pear")});
  list.setCurrentIndex(1);
  EXPECT_EQ(Spoken(list).role(), QAccessible::ComboBox);
  EXPECT_EQ(Spoken(list).text(QAccessible::Name), QStringLiteral("Fruit"));
  EXPECT_EQ(Spoken(list).text(QAccessible::Value), QStringLiteral("Pear"));
  EXPECT_TRUE(Spoken(list).state().hasPopup);
  EXPECT_FALSE(Spoken(list).state().editable);
}

TEST_F(ControlAccessibilityTest, ItsListIsOpenedAfterTheAnswer) {
  CDropDown list(*m_screen, &m_frame);
  list.setAccessibleName(QStringLiteral("Fruit"));
  list.addItem(QStringLiteral("Apple"));
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_EQ(m_screen->Popup()->accessibleName(), QStringLiteral("Fruit"));
    m_screen->Popup()->Dismiss();
  }});
  Spoken(list).actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_EQ(m_screen->Popup(), nullptr);
  QCoreApplication::processEvents();
}

TEST_F(ControlAccessibilityTest, ATypedDropDownIsEditable) {
  CTypedDropDown list(*m_screen, &m_frame);
  EXPECT_TRUE(Spoken(list).state().editable);
}

TEST_F(ControlAccessibilityTest, ADateIsAGroupAndAPictureAPicture) {
  CDatePicker date(NoneCheck::Absent, &m_frame);
  CPictureLabel picture(nullptr, &m_frame);
  EXPECT_EQ(Spoken(date).role(), QAccessible::Grouping);
  EXPECT_EQ(Spoken(picture).role(), QAccessible::Graphic);
  EXPECT_EQ(MakeControlInterface(&m_frame), nullptr);
}

}  // namespace
}  // namespace quill
