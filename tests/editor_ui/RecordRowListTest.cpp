#include "editor/ui/RecordRowList.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QInputMethodEvent>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>

#include "SheetFixture.h"
#include "editor/Draft.h"
#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
#include "platform/ui/MenuPopup.h"
#include "store/Categories.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using enum ContactField;

class RecordRowListTest : public test::SheetFixture {
 protected:
  Oid AddKim() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    record[CompanyName] = QStringLiteral("Quill");
    record[MobileTelephoneNumber] = QStringLiteral("010-1");
    record.Birthday = {.Year = 1970, .Month = 2, .DayOfWeek = 6, .Day = 28};
    return Add(record);
  }
  void Compose(const QString& text) {
    QInputMethodEvent event(text, {});
    QApplication::sendEvent(QApplication::focusWidget(), &event);
  }
};

TEST_F(RecordRowListTest, ATapOnAValueEditsItInPlaceWithAllOfItSelectedAndThePanelUp) {
  InSheet(AddKim(), [&] {
    TapRow(3);
    EXPECT_EQ(RowEdit().geometry(), QRect(80, 57, 145, 17));
    EXPECT_TRUE(RowEdit().hasFocus());
    EXPECT_EQ(RowEdit().selectedText(), QStringLiteral("Quill"));
    EXPECT_TRUE(m_panel.IsUp());
  });
}

TEST_F(RecordRowListTest, WhatIsTypedIsInTheRowAtOnce) {
  InSheet(AddKim(), [&] {
    TapRow(3);
    m_input.Type(QStringLiteral("Z"));
    EXPECT_EQ(Value(RowSet::Basic, 3), QStringLiteral("Z"));
  });
}

TEST_F(RecordRowListTest, ATapOnALabelEndsTheEditAndStartsNone) {
  InSheet(AddKim(), [&] {
    TapRow(3);
    TapRow(4, 79);
    EXPECT_FALSE(RowEdit().isVisible());
    EXPECT_EQ(Rows().EditedRow(), -1);
  });
}

TEST_F(RecordRowListTest, APenDraggedToAnotherRowEditsNeither) {
  InSheet(AddKim(), [&] {
    m_input.Press(Rows().mapTo(m_screen, QPoint(120, 3 * 19 + 5)));
    m_input.Move(Rows().mapTo(m_screen, QPoint(120, 5 * 19 + 5)));
    m_input.Release(Rows().mapTo(m_screen, QPoint(120, 5 * 19 + 5)));
    EXPECT_EQ(Rows().EditedRow(), -1);
  });
}

TEST_F(RecordRowListTest, AnEmptyNumberBeginsWithTheAreaCodeAndLosesItUntouched) {
  g_settings.AreaCode = 1;
  g_settings.AreaCodePrefix = QStringLiteral("02-");
  InSheet(AddKim(), [&] {
    TapRow(5);
    EXPECT_EQ(RowEdit().selectedText(), QStringLiteral("02-"));
    EXPECT_EQ(Value(RowSet::Basic, 5), QStringLiteral("02-"));
    TapRow(7);
    EXPECT_EQ(Value(RowSet::Basic, 5), QString());
    EXPECT_EQ(Value(RowSet::Basic, 7), QStringLiteral("02-")) << "also where the field said it";
    TapRow(4);
    EXPECT_EQ(RowEdit().text(), QStringLiteral("010-1")) << "a number is never changed";
  });
}

struct WayOut {
  const char* Name;
  std::function<void(test::ScreenInput& input, CRecordRowList& rows)> Leave;
};

class ComposingWaysOut : public RecordRowListTest, public testing::WithParamInterface<WayOut> {};

TEST_P(ComposingWaysOut, KeepAHalfComposedSyllable) {
  InSheet(AddKim(), [&] {
    TapRow(2);
    m_input.Type(QStringLiteral("a"));
    Compose(QStringLiteral("\uAE40"));
    GetParam().Leave(m_input, Rows());
    EXPECT_EQ(Value(RowSet::Basic, 2), QStringLiteral("a\uAE40"));
  });
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ComposingWaysOut,
    testing::Values(
        WayOut{"AnotherRow", [](auto&, CRecordRowList& rows) { rows.StartEdit(3); }},
        WayOut{"EndOfTheEdit", [](auto&, CRecordRowList& rows) { rows.EndEdit(); }},
        WayOut{"TheSameRowAnew", [](auto&, CRecordRowList& rows) { rows.StartEdit(2); }},
        WayOut{"Tab", [](test::ScreenInput& input, auto&) { input.Key(Qt::Key_Tab); }},
        WayOut{"Down", [](test::ScreenInput& input, auto&) { input.Key(Qt::Key_Down); }},
        WayOut{"TheFocus", [](auto&, CRecordRowList& rows) { rows.setFocus(); }}),
    [](const auto& way) { return std::string(way.param.Name); });

TEST_F(RecordRowListTest, ADateBeginsAtItsDayAndChangesOnlyOnAChange) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    m_sheet->ShowPage(1);
    TapRow(7);
    auto& picker = *qobject_cast<CDatePicker*>(m_sheet->Control(RecordSheetIds::kRowDate));
    EXPECT_EQ(picker.Date(), QDate(1970, 2, 28));
    TapRow(8);
    EXPECT_EQ(picker.Date(), std::nullopt);
    EXPECT_EQ(picker.ShownDate(), m_clock.Now().date());
    EXPECT_EQ(Value(RowSet::Detail, 8), QStringLiteral("None"));
    picker.ChooseDate(QDate(2001, 12, 31));
    EXPECT_EQ(Value(RowSet::Detail, 8), QStringLiteral("12/31/2001"));
    TapRow(7);
    picker.SetChecked(false);
    EXPECT_EQ(Value(RowSet::Detail, 7), QStringLiteral("None"));
    PressOK();
  });
  const ContactItem stored = Stored(kim);
  EXPECT_EQ(stored.Record.Birthday.Year, 0);
  EXPECT_EQ(stored.Record.Anniversary.Year, 2001);
}

class CategoryRowTest : public RecordRowListTest {
 protected:
  CategoryRowTest() { g_services.Prompt = &m_prompt; }
  ~CategoryRowTest() override { g_services.Prompt = nullptr; }

  Oid AddIn(const QString& categories) {
    EXPECT_TRUE(SetUserCategories({QStringLiteral("Family"), QStringLiteral("Work")}));
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    record[Categories] = categories;
    return Add(record);
  }
  // Opens the chooser from the row, acts in it and cancels it.
  void InChooser(const std::function<void()>& act) {
    const test::Steps steps(*m_screen, {[&] {
      act();
      m_input.Key(Qt::Key_Escape);
    }});
    Rows().StartEdit(10);
  }
  // Of a row of the chooser. Without a name the category is removed.
  void RenameCategoryOf(int row, const QString& name) {
    const CWindow& chooser = *m_screen->Topmost();
    qobject_cast<CCheckList*>(chooser.Control(CategoryChooserIds::kList))->SetCurrent(row);
    if (!name.isEmpty())
      qobject_cast<QLineEdit*>(chooser.Control(CategoryChooserIds::kEdit))->setText(name);
    const int id = name.isEmpty() ? CategoryChooserIds::kRemove : CategoryChooserIds::kRename;
    qobject_cast<QPushButton*>(chooser.Control(id))->click();
  }

  test::ScriptedPrompt m_prompt;
};

TEST_F(CategoryRowTest, FollowsWhatIsRenamedOrRemovedAtOnceAlsoWhereTheChoiceIsCancelled) {
  const Oid kim = AddIn(QStringLiteral("Work, Family"));
  m_prompt.Expect(PromptAnswer::Yes);
  InSheet(kim, [&] {
    InChooser([&] {
      RenameCategoryOf(1, QStringLiteral("Job"));
      EXPECT_EQ(Value(RowSet::Basic, 10), QStringLiteral("Job, Family"));
      RenameCategoryOf(0, {});
      EXPECT_EQ(Value(RowSet::Basic, 10), QStringLiteral("Job"));
    });
    EXPECT_EQ(Value(RowSet::Basic, 10), QStringLiteral("Job"));
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record[Categories], QStringLiteral("Job"));
}

TEST_F(CategoryRowTest, WhoseCategoryWasRenamedHoldsNothingThatWasEntered) {
  const Oid kim = AddIn(QStringLiteral("Work"));
  InSheet(kim, [&] {
    InChooser([&] { RenameCategoryOf(1, QStringLiteral("Job")); });
    m_timers.Advance(2000);
    EXPECT_EQ(LoadDraft(kim), std::nullopt);
  });
}

TEST_F(CategoryRowTest, TheSheetTellsWhatWasRenamedAndRemoved) {
  m_prompt.Expect(PromptAnswer::Yes);
  InSheet(AddIn(QStringLiteral("Work")), [&] {
    EXPECT_TRUE(m_sheet->CategoryChanges().empty());
    InChooser([&] {
      RenameCategoryOf(1, QStringLiteral("Job"));
      RenameCategoryOf(0, {});
    });
    EXPECT_EQ(m_sheet->CategoryChanges(),
              (std::vector<CategoryChange>{{QStringLiteral("Work"), QStringLiteral("Job")},
                                           {QStringLiteral("Family"), {}}}));
  });
}

TEST_F(RecordRowListTest, TabAndArrowKeysEditTheOtherRows) {
  InSheet(AddKim(), [&] {
    TapRow(1);
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Rows().EditedRow(), 2);
    m_input.Key(Qt::Key_Down);
    EXPECT_EQ(Rows().EditedRow(), 3);
    EXPECT_TRUE(RowEdit().hasFocus());
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(Rows().EditedRow(), 2);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Rows().EditedRow(), 1);
  });
}

TEST_F(RecordRowListTest, AKeyThatPassesADateChangesNothing) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    m_sheet->ShowPage(1);
    TapRow(6);
    for (const int row : {7, 8, 9}) {
      m_input.Key(Qt::Key_Down);
      EXPECT_EQ(Rows().EditedRow(), row);
    }
    m_input.Key(Qt::Key_Up);
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(Rows().EditedRow(), 7);
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record.Birthday.Month, 2);
  EXPECT_EQ(Stored(kim).Record.Anniversary.Year, 0);
}

TEST_F(RecordRowListTest, AKeyThatReachesTheCategoriesOpensNothing) {
  InSheet(AddKim(), [&] {
    TapRow(9);
    m_input.Key(Qt::Key_Down);
    EXPECT_EQ(Rows().EditedRow(), 10);
    EXPECT_EQ(m_screen->Topmost(), m_sheet);
    const test::Steps steps(*m_screen, {[&] {
      EXPECT_NE(m_screen->Topmost(), m_sheet);
      m_input.Key(Qt::Key_Escape);
    }});
    m_input.Key(Qt::Key_Space);
  });
}

TEST_F(RecordRowListTest, AHoldOnANumberOffersToCallAndToCopyIt) {
  InSheet(AddKim(), [&] {
    m_input.Press(Rows().mapTo(m_screen, QPoint(40, 4 * 19 + 5)));
    QTimer::singleShot(0, [&] {
      ASSERT_NE(m_screen->Popup(), nullptr);
      EXPECT_EQ(m_screen->Popup()->Items()[0].Text, QStringLiteral("Call"));
      m_screen->Popup()->Choose(RowMenuIds::kCopy);
    });
    m_timers.Advance(500);
    m_input.Release(Rows().mapTo(m_screen, QPoint(40, 4 * 19 + 5)));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("010-1"));
    EXPECT_EQ(Rows().EditedRow(), -1);
  });
}

TEST_F(RecordRowListTest, AHoldOnTheFieldOfANumberOffersTheSame) {
  InSheet(AddKim(), [&] {
    TapRow(4);
    const QPoint onField = RowEdit().mapTo(m_screen, QPoint(100, 8));
    m_input.Press(onField);
    QTimer::singleShot(0, [&] {
      ASSERT_NE(m_screen->Popup(), nullptr);
      m_screen->Popup()->Choose(RowMenuIds::kCopy);
    });
    m_timers.Advance(500);
    m_input.Release(onField);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("010-1"));
    EXPECT_EQ(Rows().EditedRow(), 4);
  });
}

TEST_F(RecordRowListTest, TheMenuOfTheFieldOfANumberOffersToCallIt) {
  QTextBrowser opener;  // has a slot that takes what is opened
  QDesktopServices::setUrlHandler(QStringLiteral("tel"), &opener, "setSource");
  InSheet(AddKim(), [&] {
    TapRow(4);
    QTimer::singleShot(0, [&] {
      ASSERT_NE(m_screen->Popup(), nullptr);
      ASSERT_EQ(m_screen->Popup()->Items().size(), 7U);
      EXPECT_TRUE(m_screen->Popup()->Items()[5].Separator);
      EXPECT_EQ(m_screen->Popup()->Items().back().Text, QStringLiteral("Call"));
      m_screen->Popup()->Choose(EditMenuIds::kAdded);
    });
    m_input.Key(Qt::Key_Menu);
    EXPECT_EQ(RowEdit().text(), QStringLiteral("010-1"));
  });
  QDesktopServices::unsetUrlHandler(QStringLiteral("tel"));
  EXPECT_EQ(opener.source(), QUrl(QStringLiteral("tel:0101")));
}

TEST_F(RecordRowListTest, TheMenuOfAFieldWithoutALinkOffersNothingMore) {
  InSheet(AddKim(), [&] {
    TapRow(3);
    QTimer::singleShot(0, [&] {
      ASSERT_NE(m_screen->Popup(), nullptr);
      EXPECT_EQ(m_screen->Popup()->Items().size(), 5U);
      m_screen->Popup()->Dismiss();
    });
    m_input.Key(Qt::Key_Menu);
  });
}

TEST_F(RecordRowListTest, AHoldOnTheFieldThatMovesOffersNothing) {
  InSheet(AddKim(), [&] {
    TapRow(4);
    const QPoint onField = RowEdit().mapTo(m_screen, QPoint(10, 8));
    m_input.Press(onField);
    m_input.Move(onField + QPoint(20, 0));
    m_timers.Advance(500);
    EXPECT_EQ(m_screen->Popup(), nullptr);
    m_input.Release(onField);
  });
}

TEST_F(RecordRowListTest, AHoldOnARowWithoutLinksOffersNothing) {
  InSheet(AddKim(), [&] {
    m_input.Press(Rows().mapTo(m_screen, QPoint(40, 3 * 19 + 5)));
    m_timers.Advance(500);
    EXPECT_EQ(m_screen->Popup(), nullptr);
    m_input.Release(Rows().mapTo(m_screen, QPoint(40, 3 * 19 + 5)));
  });
}

}  // namespace
}  // namespace quill
