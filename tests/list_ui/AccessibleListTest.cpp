// List and index strip as assistive technology sees them.
#include <QAccessible>

#include "ViewFixture.h"
#include "platform_ui/AccessibleChild.h"

namespace quill {
namespace {

using test::AccessibleChild;

class AccessibleListTest : public test::ViewFixture {
 protected:
  void SetUp() override { Open({QStringLiteral("Adams"), QStringLiteral("Hill")}); }
};

TEST_F(AccessibleListTest, TheListIsAListOfItsContacts) {
  auto* const list = QAccessible::queryAccessibleInterface(&List());
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Contacts"));
  const QAccessibleInterface* row = list->child(0);
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_TRUE(row->text(QAccessible::Name).contains(QStringLiteral("Adams")));
  EXPECT_TRUE(row->state().selectable);
  EXPECT_FALSE(row->state().selected);
  EXPECT_EQ(row->rect().topLeft(), List().mapToGlobal(QPoint(0, 0)));
}

TEST_F(AccessibleListTest, TheIndexStripIsABarOfButtons) {
  auto* const strip = QAccessible::queryAccessibleInterface(&IndexStrip());
  EXPECT_EQ(strip->role(), QAccessible::ToolBar);
  EXPECT_EQ(strip->text(QAccessible::Name), QStringLiteral("Index"));
  EXPECT_EQ(strip->childCount(), 5);
  EXPECT_EQ(AccessibleChild(IndexStrip(), u"G").Role(), QAccessible::PushButton);
}

TEST_F(AccessibleListTest, PressingAnIndexButtonChoosesItAndItSaysSo) {
  EXPECT_FALSE(AccessibleChild(IndexStrip(), u"G").State().checked);
  AccessibleChild(IndexStrip(), u"G").Press();
  EXPECT_EQ(g_list.IndexButton, 2);
  EXPECT_TRUE(AccessibleChild(IndexStrip(), u"G").State().checked);
}

TEST_F(AccessibleListTest, TheSearchBoxHasAName) {
  EXPECT_EQ(SearchEdit().accessibleName(), QStringLiteral("Search for"));
}

}  // namespace
}  // namespace quill
