#include "appointments/ui/RecurrencePatternPage.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QtMath>

#include "appointments/ui/RecurrenceKindTabs.h"
#include "appointments_ui/WizardFixture.h"
#include "platform/ui/RowPainter.h"

namespace quill {
namespace {

using namespace RecurrencePatternIds;

// The ids of each kind, as they are known outside.
const std::array<std::vector<int>, 4> kIdsOfKinds = {
    std::vector{1026}, std::vector{1027, 1021, 1022, 1023, 1024, 1036, 1045, 1014},
    std::vector{1028, 1031, 1030, 1012, 1029, 1034, 1032},
    std::vector{1035, 1040, 1039, 1013, 1047, 1048, 1046}};

class RecurrencePatternPageTest : public test::WizardFixture {
 protected:
  void TapKind(RecurrenceKind kind) {
    TapIn(Get<CRecurrenceKindTabs>(1003), {10 + 58 * static_cast<int>(kind), 10});
  }
  void ExpectOnly(RecurrenceKind shown) {
    for (std::size_t kind = 0; kind < kIdsOfKinds.size(); ++kind)
      for (const int id : kIdsOfKinds[kind])
        EXPECT_EQ(IsShown(id), kind == static_cast<std::size_t>(shown)) << id;
  }
  // Labels too.
  std::vector<const QWidget*> ShownOnPage() const {
    std::vector<const QWidget*> shown;
    for (const QObject* child : m_sheet->ActivePage()->children()) {
      const auto* const widget = qobject_cast<const QWidget*>(child);
      if (widget && widget->isVisible()) shown.push_back(widget);
    }
    return shown;
  }
  WeekDayToggles Days() const {
    WeekDayToggles days{};
    for (std::size_t i = 0; i < days.size(); ++i) days[i] = IsChecked(kDays[i]);
    return days;
  }
};

class EveryKind : public RecurrencePatternPageTest,
                  public testing::WithParamInterface<RecurrenceKind> {};

TEST_P(EveryKind, ShowsItsControlsAndNoOthers) {
  Look([this] {
    TapKind(GetParam());
    ExpectOnly(GetParam());
  });
}

TEST_P(EveryKind, ItsControlsStandOnThePageBelowTheStripAndDoNotOverlap) {
  Look([this] {
    TapKind(GetParam());
    const auto shown = ShownOnPage();
    for (std::size_t i = 0; i < shown.size(); ++i) {
      EXPECT_TRUE(QRect(0, 0, 240, 150).contains(shown[i]->geometry()));
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(shown[i]->geometry().intersects(shown[j]->geometry()));
    }
  });
}

// How much of a control's width its text, or its widest entry, leaves.
int WidthLeft(const QWidget& control) {
  const TextWidth width = NormalTextWidth();
  if (const auto* const label = qobject_cast<const QLabel*>(&control))
    return label->width() - qCeil(width(label->text()));
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
    const int mark = qobject_cast<const QRadioButton*>(button) ? 15 : 4;
    return button->width() - mark - qCeil(width(button->text()));
  }
  const auto* const list = qobject_cast<const QComboBox*>(&control);
  if (!list) return 0;
  const int room = list->lineEdit() ? list->lineEdit()->width() - 6 : list->width() - 26;
  int least = room;
  for (int i = 0; i < list->count(); ++i)
    least = std::min(least, room - qCeil(width(list->itemText(i))));
  return least;
}

TEST_P(EveryKind, ItsTextsFitTheirPlaces) {
  Look([this] {
    TapKind(GetParam());
    for (const QWidget* control : ShownOnPage())
      EXPECT_GE(WidthLeft(*control), 0) << control->accessibleName().toStdString();
  });
}

using enum RecurrenceKind;
INSTANTIATE_TEST_SUITE_P(Kinds, EveryKind, testing::Values(Daily, Weekly, Monthly, Yearly));

struct TypeCase {
  RecurrenceType Type;
  RecurrenceKind Kind;
  int MonthlyRadio;
  int YearlyRadio;
};

class EveryType : public RecurrencePatternPageTest, public testing::WithParamInterface<TypeCase> {};

TEST_P(EveryType, OpensOnItsKindWithItsRadioButtons) {
  m_pattern.Type = GetParam().Type;
  Look([this] {
    EXPECT_EQ(Get<CRecurrenceKindTabs>(1003).Kind(), GetParam().Kind);
    ExpectOnly(GetParam().Kind);
    for (const int id : {1028, 1012}) EXPECT_EQ(IsChecked(id), id == GetParam().MonthlyRadio);
    for (const int id : {1035, 1013}) EXPECT_EQ(IsChecked(id), id == GetParam().YearlyRadio);
  });
}

INSTANTIATE_TEST_SUITE_P(Types, EveryType,
                         testing::Values(TypeCase{RecurrenceType::Daily, Daily, 1028, 1035},
                                         TypeCase{RecurrenceType::Weekly, Weekly, 1028, 1035},
                                         TypeCase{RecurrenceType::Monthly, Monthly, 1028, 1035},
                                         TypeCase{RecurrenceType::MonthlyNth, Monthly, 1012, 1035},
                                         TypeCase{RecurrenceType::Yearly, Yearly, 1028, 1035},
                                         TypeCase{RecurrenceType::YearlyNth, Yearly, 1028, 1013}));

TEST_F(RecurrencePatternPageTest, TheListsOfferTheirEntries) {
  Look([this] {
    for (const int id : {1026, 1027, 1030, 1032}) EXPECT_EQ(EntriesOf(id), OfferedIntervals());
    for (const int id : {1031, 1039}) EXPECT_EQ(EntriesOf(id), OfferedDays());
    for (const int id : {1029, 1047}) EXPECT_EQ(EntriesOf(id), InstanceNames());
    for (const int id : {1034, 1048}) EXPECT_EQ(EntriesOf(id), WeekdayNames());
    for (const int id : {1040, 1046}) EXPECT_EQ(EntriesOf(id), MonthNames());
  });
}

TEST_F(RecurrencePatternPageTest, TheKeyPanelOffersDigitsForWhatIsTyped) {
  Look([this] {
    for (const int id : {1026, 1027, 1030, 1032, 1031, 1039}) {
      ASSERT_TRUE(Get<QComboBox>(id).isEditable());
      EXPECT_EQ(Get<QComboBox>(id).inputMethodQuery(Qt::ImHints).toInt(), Qt::ImhDigitsOnly);
    }
    for (const int id : {1029, 1047, 1034, 1048, 1040, 1046})
      EXPECT_FALSE(Get<QComboBox>(id).isEditable());
  });
}

TEST_F(RecurrencePatternPageTest, ShowsWhatThePatternHolds) {
  Look([this] {
    for (const int id : {1026, 1027, 1030, 1032}) EXPECT_EQ(TextOf(id), QStringLiteral("3")) << id;
    for (const int id : {1031, 1039}) EXPECT_EQ(TextOf(id), QStringLiteral("30")) << id;
    for (const int id : {1029, 1047}) EXPECT_EQ(TextOf(id), QStringLiteral("Fifth")) << id;
    for (const int id : {1034, 1048}) EXPECT_EQ(TextOf(id), QStringLiteral("Tuesday")) << id;
    for (const int id : {1040, 1046}) EXPECT_EQ(TextOf(id), QStringLiteral("March")) << id;
    EXPECT_EQ(Days(), (WeekDayToggles{false, false, true}));
  });
}

TEST_F(RecurrencePatternPageTest, DailyWritesTheIntervalThatIsChosen) {
  Edit([this] { Choose(1026, QStringLiteral("15")); });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::Daily);
  EXPECT_EQ(m_pattern.Interval, 15);
}

TEST_F(RecurrencePatternPageTest, WeeklyWritesItsIntervalAndTheDaysOneLater) {
  Edit([this] {
    TapKind(Weekly);
    TypeOver(1027, QStringLiteral("6"));
    Tap(1014);
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::Weekly);
  EXPECT_EQ(m_pattern.Interval, 6);
  EXPECT_EQ(m_pattern.DayOfWeekMask, 8 + 128);
}

TEST_F(RecurrencePatternPageTest, MonthlyByDayWritesItsDayAndInterval) {
  Edit([this] {
    TapKind(Monthly);
    Choose(1031, QStringLiteral("28"));
    TypeOver(1030, QStringLiteral("12"));
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::Monthly);
  EXPECT_EQ(m_pattern.DayOfMonth, 28);
  EXPECT_EQ(m_pattern.Interval, 12);
}

TEST_F(RecurrencePatternPageTest, MonthlyByWeekdayWritesItsInstanceWeekdayAndInterval) {
  Edit([this] {
    TapKind(Monthly);
    Tap(1012);
    Choose(1029, QStringLiteral("Second"));
    Choose(1034, QStringLiteral("Saturday"));
    Choose(1032, QStringLiteral("2"));
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::MonthlyNth);
  EXPECT_EQ(m_pattern.Instance, 2);
  EXPECT_EQ(m_pattern.DayOfWeekMask, 64);
  EXPECT_EQ(m_pattern.Interval, 2);
}

TEST_F(RecurrencePatternPageTest, YearlyByDayWritesItsMonthAndDay) {
  Edit([this] {
    TapKind(Yearly);
    Choose(1040, QStringLiteral("February"));
    TypeOver(1039, QStringLiteral("29"));
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::Yearly);
  EXPECT_EQ(m_pattern.MonthOfYear, 2);
  EXPECT_EQ(m_pattern.DayOfMonth, 29);
}

TEST_F(RecurrencePatternPageTest, YearlyByWeekdayWritesItsInstanceWeekdayAndMonth) {
  Edit([this] {
    TapKind(Yearly);
    Tap(1013);
    Choose(1047, QStringLiteral("First"));
    Choose(1048, QStringLiteral("Sunday"));
    Choose(1046, QStringLiteral("December"));
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::YearlyNth);
  EXPECT_EQ(m_pattern.Instance, 1);
  EXPECT_EQ(m_pattern.DayOfWeekMask, 1);
  EXPECT_EQ(m_pattern.MonthOfYear, 12);
}

TEST_F(RecurrencePatternPageTest, ATextThatIsNoNumberIsTakenAndWrittenAsZero) {
  Edit([this] { TypeOver(1026, QStringLiteral("often")); });
  EXPECT_EQ(m_pattern.Interval, 0);
}

TEST_F(RecurrencePatternPageTest, OfAKindThatIsNotShownNothingIsWritten) {
  Edit([this] {
    TapKind(Monthly);
    TypeOver(1031, QStringLiteral("7"));
    TapKind(Daily);
  });
  EXPECT_EQ(m_pattern.Type, RecurrenceType::Daily);
  EXPECT_EQ(m_pattern.DayOfMonth, 30);
  EXPECT_EQ(m_pattern.Interval, 3);
}

struct ListCase {
  RecurrenceKind Kind;
  int List;
  int Radio;
  int OtherRadio;
};

class EveryListOfAPair : public RecurrencePatternPageTest,
                         public testing::WithParamInterface<ListCase> {};

TEST_P(EveryListOfAPair, ChecksItsRadioButtonWhenAnEntryIsChosen) {
  Look([this] {
    TapKind(GetParam().Kind);
    Tap(GetParam().OtherRadio);
    EXPECT_TRUE(IsChecked(GetParam().OtherRadio));
    Choose(GetParam().List, TextOf(GetParam().List));
    EXPECT_TRUE(IsChecked(GetParam().Radio));
    EXPECT_FALSE(IsChecked(GetParam().OtherRadio));
  });
}

TEST_P(EveryListOfAPair, LeavesTheOtherPairAlone) {
  Look([this] {
    const bool isMonthly = GetParam().Kind == Monthly;
    const std::array others = isMonthly ? std::array{1035, 1013} : std::array{1028, 1012};
    TapKind(isMonthly ? Yearly : Monthly);
    Tap(others[1]);
    TapKind(GetParam().Kind);
    Choose(GetParam().List, TextOf(GetParam().List));
    EXPECT_FALSE(IsChecked(others[0]));
    EXPECT_TRUE(IsChecked(others[1]));
  });
}

INSTANTIATE_TEST_SUITE_P(
    Lists, EveryListOfAPair,
    testing::Values(ListCase{Monthly, 1030, 1028, 1012}, ListCase{Monthly, 1029, 1012, 1028},
                    ListCase{Monthly, 1034, 1012, 1028}, ListCase{Monthly, 1032, 1012, 1028},
                    ListCase{Yearly, 1040, 1035, 1013}, ListCase{Yearly, 1047, 1013, 1035},
                    ListCase{Yearly, 1048, 1013, 1035}, ListCase{Yearly, 1046, 1013, 1035}));

class EveryTypedListOfAPair : public RecurrencePatternPageTest,
                              public testing::WithParamInterface<ListCase> {};

TEST_P(EveryTypedListOfAPair, ChecksItsRadioButtonWhenSomethingIsTyped) {
  Look([this] {
    TapKind(GetParam().Kind);
    Tap(GetParam().OtherRadio);
    TypeOver(GetParam().List, QStringLiteral("9"));
    EXPECT_TRUE(IsChecked(GetParam().Radio));
    EXPECT_FALSE(IsChecked(GetParam().OtherRadio));
    Tap(GetParam().OtherRadio);
    TypeOver(GetParam().List, QString());
    EXPECT_TRUE(IsChecked(GetParam().Radio));
  });
}

TEST_P(EveryTypedListOfAPair, StaysUncheckedWhenItIsOnlyLookedAt) {
  Look([this] {
    TapKind(GetParam().Kind);
    Tap(GetParam().OtherRadio);
    const auto& list = Get<QComboBox>(GetParam().List);
    TapIn(list, {8, list.height() / 2});
    EXPECT_TRUE(m_panel.IsUp());
    Tap(GetParam().OtherRadio);
    EXPECT_FALSE(m_panel.IsUp());
    EXPECT_FALSE(IsChecked(GetParam().Radio));
  });
}

INSTANTIATE_TEST_SUITE_P(Lists, EveryTypedListOfAPair,
                         testing::Values(ListCase{Monthly, 1031, 1028, 1012},
                                         ListCase{Monthly, 1030, 1028, 1012},
                                         ListCase{Monthly, 1032, 1012, 1028},
                                         ListCase{Yearly, 1039, 1035, 1013}));

TEST_F(RecurrencePatternPageTest, TheDaysAreNamedAndTurnedOverByTaps) {
  m_pattern.Type = RecurrenceType::Weekly;
  Look([this] {
    for (std::size_t i = 0; i < kDays.size(); ++i)
      EXPECT_EQ(QAccessible::queryAccessibleInterface(m_sheet->Control(kDays[i]))
                    ->text(QAccessible::Name),
                WeekdayNames()[static_cast<int>(i)]);
    Tap(1021);
    EXPECT_EQ(Days(), (WeekDayToggles{true, false, true}));
    Tap(1023);
    EXPECT_EQ(Days(), (WeekDayToggles{true}));
  });
}

TEST_F(RecurrencePatternPageTest, TheOnlyDayStaysOnAndAMessageSaysWhy) {
  m_pattern.Type = RecurrenceType::Weekly;
  m_prompt.Expect(PromptAnswer::OK);
  Edit([this] {
    Tap(1023);
    EXPECT_EQ(Days(), (WeekDayToggles{false, false, true}));
  });
  ASSERT_EQ(m_prompt.Shown().size(), 1U);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("At least one day must be selected."));
  EXPECT_EQ(m_prompt.Shown()[0].Caption, QStringLiteral("Quill (Quillbook)"));
  EXPECT_EQ(m_prompt.Shown()[0].Buttons, PromptButtons::OK);
  EXPECT_EQ(m_pattern.DayOfWeekMask, 8);
}

TEST_F(RecurrencePatternPageTest, OnlySundayIsWrittenAsMaskTwo) {
  m_pattern.Type = RecurrenceType::Weekly;
  Edit([this] {
    Tap(1021);
    Tap(1023);
  });
  EXPECT_EQ(m_pattern.DayOfWeekMask, 2);
}

TEST_F(RecurrencePatternPageTest, WithoutATouchTheDaysMoveOnByOneEachTimeAsIntended) {
  m_pattern.Type = RecurrenceType::Weekly;
  Edit([] {});
  EXPECT_EQ(m_pattern.DayOfWeekMask, 8);
  Edit([] {});
  EXPECT_EQ(m_pattern.DayOfWeekMask, 16);
}

TEST_F(RecurrencePatternPageTest, TheKeyboardGoesFromTheStripThroughTheShownControls) {
  m_pattern.Type = RecurrenceType::Weekly;
  Look([this] {
    EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(1003));
    for (const int id : kIdsOfKinds[1]) {
      m_input.Key(Qt::Key_Tab);
      EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(id)) << id;
    }
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(2));
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(1002)) << "there is no way back";
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(1003));
  });
}

}  // namespace
}  // namespace quill
