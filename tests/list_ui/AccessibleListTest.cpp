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

TEST_F(AccessibleListTest, ARowSaysItsSecondColumnAndThatItIsSelected) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Clark");
  record[ContactField::MobileTelephoneNumber] = QStringLiteral("010-1");
  ASSERT_NE(m_store.Contacts()->Save(0, record, {}), 0);
  View().Rebuild();
  m_input.Press(OnRow(1));
  const AccessibleChild row(List(), u"Clark, 010-1");
  EXPECT_TRUE(row.State().selected);
  EXPECT_TRUE(row.State().focused);
}

TEST_F(AccessibleListTest, TheMenuActionSelectsTheRowAndAsksForItsPopup) {
  QList<int> asked;
  List().PopupAsked = [&asked](int row, QPoint) { asked.append(row); };
  AccessibleChild(List(), u"Hill").ShowMenu();
  EXPECT_EQ(asked, QList<int>{1});
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{g_list.Rows[1].Oid});
  List().ShowRowMenu(2);  // the line below the last contact
  EXPECT_EQ(asked.size(), 1);
}

TEST_F(AccessibleListTest, TheViewIsReadOutFromTopToBottom) {
  auto* const view = QAccessible::queryAccessibleInterface(&View());
  QStringList names;
  for (int i = 0; i < view->childCount(); ++i)
    if (!view->child(i)->text(QAccessible::Name).isEmpty())
      names.append(view->child(i)->text(QAccessible::Name));
  EXPECT_EQ(names.join(u';').toStdString(), "Search for;Search;Category;Index;Contacts;Scroll bar");
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
