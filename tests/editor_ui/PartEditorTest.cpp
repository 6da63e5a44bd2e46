#include "editor/ui/PartEditor.h"

#include "SheetFixture.h"

namespace quill {
namespace {

using enum ContactField;

class PartEditorTest : public test::SheetFixture {
 protected:
  Oid AddKim() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim, Min");
    record[FirstName] = QStringLiteral("Min");
    record[LastName] = QStringLiteral("Kim");
    record[BusinessAddressStreet] = QStringLiteral("Mill Lane 1\r\nBack\u00A0door");
    record[BusinessAddressCity] = QStringLiteral("Seoul");
    return Add(record);
  }
  QWidget& Control(int id) const { return *m_sheet->Control(id); }
};

TEST_F(PartEditorTest, TheNameRowOpensTheFivePartsWithTheFocus) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    ASSERT_NE(Parts(), nullptr);
    EXPECT_EQ(Parts()->geometry(), QRect(20, 20, 200, 100));
    EXPECT_TRUE(Parts()->hasFocus());
    EXPECT_EQ(Parts()->Parts(), RowSet::NameParts);
  });
}

TEST_F(PartEditorTest, ATapEditsAPartAndTheNameRowShowsItAfterwards) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    TapPart({100, 25});
    EXPECT_EQ(Control(RecordSheetIds::kNamePartEdit).geometry().x(), 55);
    m_input.Type(QStringLiteral("Jae"));
    EXPECT_EQ(Value(RowSet::NameParts, 1), QStringLiteral("Jae"));
    m_panel.Lower();
    TapRow(11, 10);
    EXPECT_EQ(Parts(), nullptr);
    EXPECT_EQ(Value(RowSet::Basic, 0), QStringLiteral("Jae Kim "));
  });
}

TEST_F(PartEditorTest, ATapOnALabelEndsThePartAndKeepsTheEditorOpen) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    TapPart({100, 25});
    TapPart({20, 30});
    EXPECT_NE(Parts(), nullptr);
    EXPECT_FALSE(Control(RecordSheetIds::kNamePartEdit).isVisible());
  });
}

TEST_F(PartEditorTest, TabLeadsThroughThePartsAndOutOfThem) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    for (int part = 0; part < 5; ++part) m_input.Key(Qt::Key_Tab);
    m_input.Type(QStringLiteral("Jr."));
    EXPECT_EQ(Value(RowSet::NameParts, 4), QStringLiteral("Jr."));
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Parts(), nullptr);
    EXPECT_EQ(Rows().EditedRow(), 1);
    EXPECT_TRUE(RowEdit().hasFocus());
  });
}

TEST_F(PartEditorTest, AStreetThatIsOnlyLookedAtStaysAsItIs) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TapRow(8);
    EXPECT_EQ(Parts()->geometry(), QRect(20, 30, 200, 131));
    TapPart({100, 25});
    EXPECT_TRUE(Control(RecordSheetIds::kStreetEdit).hasFocus());
    TapPart({100, 60});
    EXPECT_FALSE(Control(RecordSheetIds::kStreetEdit).isVisible());
    EXPECT_EQ(Control(RecordSheetIds::kAddressPartEdit).geometry(), QRect(55, 51, 140, 17));
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record[BusinessAddressStreet],
            QStringLiteral("Mill Lane 1\r\nBack\u00A0door"));
}

TEST_F(PartEditorTest, AStreetOfSeveralLinesIsKeptWhole) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TapRow(8);
    TapPart({100, 25});
    m_input.Type(QStringLiteral("A"));
    m_input.Key(Qt::Key_Return);
    m_input.Type(QStringLiteral("B"));
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record[BusinessAddressStreet], QStringLiteral("A\nB"));
}

TEST_F(PartEditorTest, ArrowKeysLeadThroughTheLinesOfAStreetAndOutOfThem) {
  InSheet(AddKim(), [&] {
    TapRow(8);
    TapPart({100, 25});
    m_input.Key(Qt::Key_Up);
    EXPECT_TRUE(Control(RecordSheetIds::kStreetEdit).hasFocus());
    m_input.Key(Qt::Key_Down);
    EXPECT_TRUE(Control(RecordSheetIds::kStreetEdit).hasFocus());
    m_input.Key(Qt::Key_Down);
    EXPECT_TRUE(Control(RecordSheetIds::kAddressPartEdit).hasFocus());
    m_input.Type(QStringLiteral("Busan"));
    EXPECT_EQ(Value(RowSet::WorkAddress, 1), QStringLiteral("Busan"));
    m_input.Key(Qt::Key_Up);
    EXPECT_TRUE(Control(RecordSheetIds::kStreetEdit).hasFocus());
    m_input.Key(Qt::Key_Up);
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(Parts(), nullptr);
    EXPECT_EQ(Rows().EditedRow(), 7);
  });
}

TEST_F(PartEditorTest, WhatIsTypedBeforeAPartIsChosenIsInTheFirstNameOrTheStreet) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    m_input.Type(QStringLiteral("Jae"));
    EXPECT_EQ(Value(RowSet::NameParts, 1), QStringLiteral("Jae"));
    m_panel.Lower();
    TapRow(8);
    m_input.Type(QStringLiteral("Hill 2"));
    EXPECT_EQ(Value(RowSet::WorkAddress, 0), QStringLiteral("Hill 2"));
  });
}

TEST_F(PartEditorTest, TheDetailPageHasTheHomeAddress) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    m_sheet->ShowPage(1);
    TapRow(4);
    TapPart({100, 60});
    m_input.Type(QStringLiteral("Busan"));
    m_panel.Lower();
    TapRow(11, 10);
    EXPECT_EQ(Value(RowSet::Detail, 4), QStringLiteral("Busan"));
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record[HomeAddressCity], QStringLiteral("Busan"));
}

}  // namespace
}  // namespace quill
