#include "driver/ControlChange.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>

#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
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

TEST_F(ControlChangeTest, ARowOfAListIsSelected) {
  QListWidget list(&m_frame);
  list.addItems({QStringLiteral("Phone"), QStringLiteral("Desk")});
  for (const int row : {-1, 2})
    EXPECT_FALSE(PrepareChange(list, {{QStringLiteral("index"), row}}).has_value()) << row;
  const auto change = PrepareChange(list, {{QStringLiteral("index"), 1}});
  ASSERT_TRUE(change.has_value());
  (*change)();
  EXPECT_EQ(list.currentRow(), 1);
  EXPECT_EQ(list.selectedItems().size(), 1);
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

class DateChangeTest : public test::ScreenFixture {
 protected:
  DateChangeTest() {
    for (CDatePicker* picker : {&m_date, &m_plain}) {
      picker->SetDate(QDate(2004, 9, 15), {});
      picker->Changed = [this] { ++m_changes; };
      picker->show();
    }
  }

  // False when the control cannot take the change.
  static bool Set(QWidget& control, const QJsonObject& arguments) {
    const auto change = PrepareChange(control, arguments);
    if (change) (*change)();
    return change.has_value();
  }
  static QJsonObject Date(const QJsonValue& date) { return {{QStringLiteral("date"), date}}; }
  static QJsonObject Checked(bool checked) { return {{QStringLiteral("checked"), checked}}; }

  test::SampleFrame m_frame{*m_screen};
  CDatePicker m_date{NoneCheck::Shown, &m_frame};
  CDatePicker m_plain{NoneCheck::Absent, &m_frame};
  int m_changes = 0;
};

TEST_F(DateChangeTest, ADateIsChosenAsByItsUser) {
  EXPECT_TRUE(Set(m_date, Date(QStringLiteral("2001-02-03"))));
  EXPECT_EQ(m_date.Date(), QDate(2001, 2, 3));
  EXPECT_EQ(m_changes, 1);
  EXPECT_TRUE(m_date.isAncestorOf(QApplication::focusWidget()));
  EXPECT_TRUE(Set(m_plain, Date(QStringLiteral("2001-02-03"))));
  EXPECT_EQ(m_plain.Date(), QDate(2001, 2, 3));
}

TEST_F(DateChangeTest, NullAndTheCheckTakeTheDateAway) {
  EXPECT_TRUE(Set(m_date, Date(QJsonValue::Null)));
  EXPECT_EQ(m_date.Date(), std::nullopt);
  EXPECT_TRUE(Set(m_date, Checked(true)));
  EXPECT_EQ(m_date.Date(), QDate(2004, 9, 15));
  EXPECT_TRUE(Set(m_date, Checked(false)));
  EXPECT_EQ(m_date.Date(), std::nullopt);
  EXPECT_EQ(m_changes, 3);
}

TEST_F(DateChangeTest, WhatADateCannotBeIsRefused) {
  for (const char* const date : {"2001-02-30", "1899-12-31", "3000-01-01", "", "02/03/2001"})
    EXPECT_FALSE(Set(m_date, Date(QString::fromLatin1(date)))) << date;
  EXPECT_FALSE(Set(m_date, Date(5)));
  EXPECT_FALSE(Set(m_plain, Date(QJsonValue::Null)));
  EXPECT_FALSE(Set(m_plain, Checked(false)));
  QLineEdit edit(&m_frame);
  EXPECT_FALSE(Set(edit, Date(QJsonValue::Null)));
  EXPECT_FALSE(Set(edit, Date(QStringLiteral("2001-02-03"))));
  EXPECT_EQ(m_changes, 0);
}

}  // namespace
}  // namespace quill::driver
