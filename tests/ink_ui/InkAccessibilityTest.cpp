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

TEST_F(InkAccessibilityTest, ItsTextIsReadWithCaretAndSelection) {
  Type(QStringLiteral("Kim Lee"));
  Key(Qt::Key_Left, Qt::ShiftModifier);
  Key(Qt::Key_Left, Qt::ShiftModifier);
  QAccessibleTextInterface* const text = Spoken().textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->characterCount(), 7);
  EXPECT_EQ(text->text(4, 7), QStringLiteral("Lee"));
  EXPECT_EQ(text->cursorPosition(), 5);
  EXPECT_EQ(text->selectionCount(), 1);
  int from = 0;
  int to = 0;
  text->selection(0, &from, &to);
  EXPECT_EQ(from, 5);
  EXPECT_EQ(to, 7);
}

TEST_F(InkAccessibilityTest, ACharacterIsFoundWhereItStands) {
  Type(QStringLiteral("Kim Lee"));
  QAccessibleTextInterface* const text = Spoken().textInterface();
  for (const int at : {0, 3, 6}) {
    const QRect place = text->characterRect(at);
    EXPECT_FALSE(place.isEmpty());
    EXPECT_EQ(text->offsetAtPoint(place.center()), at);
  }
}

}  // namespace
}  // namespace quill
