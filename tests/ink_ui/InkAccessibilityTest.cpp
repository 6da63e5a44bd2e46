#include "ink/ui/InkAccessibility.h"

#include <QAccessible>

#include "ink_ui/InkFixture.h"

namespace quill {
namespace {

class InkAccessibilityTest : public test::InkFixture {
 protected:
  QAccessibleInterface& Spoken() { return *QAccessible::queryAccessibleInterface(m_ink); }
  QString Say(QAccessible::Text text) { return Spoken().text(text); }
};

TEST_F(InkAccessibilityTest, IsADocumentWithItsTypedText) {
  Type(QStringLiteral("Kim"));
  EXPECT_EQ(Spoken().role(), QAccessible::Document);
  EXPECT_EQ(Say(QAccessible::Name), QStringLiteral("Note"));
  EXPECT_EQ(Say(QAccessible::Value), QStringLiteral("Kim"));
  EXPECT_TRUE(Spoken().state().editable);
}

TEST_F(InkAccessibilityTest, TheDescriptionCountsTheStrokes) {
  EXPECT_EQ(Say(QAccessible::Description), QStringLiteral("0 strokes"));
  Line({20, 30}, {60, 30});
  EXPECT_EQ(Say(QAccessible::Description), QStringLiteral("1 stroke"));
}

TEST_F(InkAccessibilityTest, TheNoticeIsSpokenAndALockedNoteIsReadOnly) {
  Ink().SetData("no ink");
  EXPECT_EQ(Say(QAccessible::Description),
            QStringLiteral("This is no note; it is kept as it is. 0 strokes"));
  EXPECT_TRUE(Spoken().state().readOnly);
}

}  // namespace
}  // namespace quill
