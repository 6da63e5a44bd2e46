#include "appointments/ui/RecurrenceRangePage.h"

#include <QApplication>

#include "appointments_ui/WizardFixture.h"
#include "platform/ui/DatePicker.h"

namespace quill {
namespace {

class RecurrenceRangePageTest : public test::WizardFixture {
 protected:
  void LookAtRange(const std::function<void()>& act) {
    Look([&] {
      m_sheet->ShowPage(1);
      act();
    });
  }
  void EditRange(const std::function<void()>& act) {
    Edit([&] {
      m_sheet->ShowPage(1);
      act();
    });
  }
  CDatePicker& Date() const { return Get<CDatePicker>(1041); }
  void ExpectChecked(int radio) {
    for (const int id : {1006, 1007, 1042}) EXPECT_EQ(IsChecked(id), id == radio) << id;
  }
};

TEST_F(RecurrenceRangePageTest, APatternWithoutAnEndShowsThatAndWhatItWouldBeginWith) {
  m_pattern.Occurrences = 7;
  LookAtRange([this] {
    ExpectChecked(1006);
    EXPECT_EQ(Date().ShownDate(), QDate(2004, 5, 30));
    EXPECT_FALSE(Date().HasNoneCheck());
    EXPECT_EQ(TextOf(1045), QStringLiteral("10"));
    EXPECT_EQ(EntriesOf(1045), OfferedOccurrences());
    EXPECT_TRUE(Get<QComboBox>(1045).isEditable());
  });
}

TEST_F(RecurrenceRangePageTest, AnEndOnADateShowsIt) {
  m_pattern.NoEndDate = false;
  m_pattern.PatternEndDate = QDate(2005, 1, 2);
  LookAtRange([this] {
    ExpectChecked(1007);
    EXPECT_EQ(Date().ShownDate(), QDate(2005, 1, 2));
    EXPECT_EQ(TextOf(1045), QStringLiteral("10"));
  });
}

TEST_F(RecurrenceRangePageTest, AnEndAfterANumberShowsIt) {
  m_pattern.NoEndDate = false;
  m_pattern.Occurrences = 37;
  LookAtRange([this] {
    ExpectChecked(1042);
    EXPECT_EQ(Date().ShownDate(), QDate(2004, 5, 30));
    EXPECT_EQ(TextOf(1045), QStringLiteral("37"));
  });
}

TEST_F(RecurrenceRangePageTest, WritesThatThereIsNoEnd) {
  m_pattern.NoEndDate = false;
  m_pattern.Occurrences = 7;
  EditRange([this] { Tap(1006); });
  EXPECT_TRUE(m_pattern.NoEndDate);
  EXPECT_EQ(m_pattern.Occurrences, 7);
}

TEST_F(RecurrenceRangePageTest, WritesTheDateOfTheEnd) {
  m_pattern.Occurrences = 7;
  EditRange([this] {
    Tap(1007);
    Date().ChooseDate(QDate(2006, 7, 8));
  });
  EXPECT_FALSE(m_pattern.NoEndDate);
  EXPECT_EQ(m_pattern.PatternEndDate, QDate(2006, 7, 8));
  EXPECT_EQ(m_pattern.Occurrences, 0);
}

TEST_F(RecurrenceRangePageTest, WritesTheNumberWithTheDateThatFollowsFromTheEditedPattern) {
  Edit([this] {
    TypeOver(1026, QStringLiteral("2"));
    m_sheet->ShowPage(1);
    Tap(1042);
    TypeOver(1045, QStringLiteral("12"));
  });
  EXPECT_FALSE(m_pattern.NoEndDate);
  EXPECT_EQ(m_pattern.Occurrences, 12);
  EXPECT_EQ(m_pattern.PatternEndDate, QDate(2004, 3, 30).addDays(22));
}

class NoNumber : public RecurrenceRangePageTest, public testing::WithParamInterface<const char*> {};

TEST_P(NoNumber, IsWrittenAsNoOccurrences) {
  EditRange([this] {
    Tap(1042);
    TypeOver(1045, QString::fromLatin1(GetParam()));
  });
  EXPECT_FALSE(m_pattern.NoEndDate);
  EXPECT_EQ(m_pattern.Occurrences, 0);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoNumber, testing::Values("0", "", "many"));

TEST_F(RecurrenceRangePageTest, WhatIsChosenChecksItsRadioButton) {
  LookAtRange([this] {
    Choose(1045, QStringLiteral("3"));
    ExpectChecked(1042);
    Date().ChooseDate(QDate(2006, 7, 8));
    ExpectChecked(1007);
    TypeOver(1045, QStringLiteral("4"));
    ExpectChecked(1042);
  });
}

TEST_F(RecurrenceRangePageTest, TheFocusBeginsOnTheCheckedRadioButton) {
  m_pattern.NoEndDate = false;
  m_pattern.Occurrences = 7;
  LookAtRange([this] { EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(1042)); });
}

TEST_F(RecurrenceRangePageTest, ItsControlsStandOnThePageAndDoNotOverlap) {
  LookAtRange([this] {
    std::vector<QRect> places;
    for (const QObject* child : m_sheet->ActivePage()->children())
      if (const auto* const widget = qobject_cast<const QWidget*>(child))
        places.push_back(widget->geometry());
    EXPECT_EQ(places.size(), 7U);
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(QRect(0, 0, 240, 150).contains(places[i]));
      for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(places[i].intersects(places[j]));
    }
  });
}

}  // namespace
}  // namespace quill
