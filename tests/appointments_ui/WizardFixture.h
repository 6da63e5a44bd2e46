// A fixture that opens the recurrence wizard and lets a test act in it.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include "appointments/ui/RecurrenceSheet.h"
#include "platform/Services.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/AppointmentIds.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"

namespace quill::test {

class WizardFixture : public ScreenFixture {
 protected:
  WizardFixture() {
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
  }
  ~WizardFixture() override {
    g_services.Prompt = nullptr;
    g_services.Clock = nullptr;
  }

  // Opens the wizard, acts in it, which ends it, and gives its result. Its pattern is taken.
  int Run(const std::function<void()>& act) {
    CRecurrenceSheet sheet(*m_screen, m_pattern, m_start);
    m_sheet = &sheet;
    const Steps steps(*m_screen, {act});
    const int result = sheet.DoModal();
    m_pattern = sheet.Pattern();
    m_sheet = nullptr;
    return result;
  }
  void Look(const std::function<void()>& act) {
    Run([&] {
      act();
      m_sheet->OnCancel();
    });
  }
  void Edit(const std::function<void()>& act) {
    Run([&] {
      act();
      m_sheet->OnOK();
    });
  }

  // The shown page or the sheet has it, and it is of this kind; else the test ends in a crash.
  template <class Widget>
  Widget& Get(int id) const {
    return dynamic_cast<Widget&>(*m_sheet->Control(id));
  }
  bool IsShown(int id) const { return Get<QWidget>(id).isVisible(); }
  bool IsChecked(int id) const { return Get<QAbstractButton>(id).isChecked(); }
  QString TextOf(int id) const { return Get<QComboBox>(id).currentText(); }
  QStringList EntriesOf(int id) const {
    QStringList entries;
    const auto& list = Get<QComboBox>(id);
    for (int i = 0; i < list.count(); ++i) entries.append(list.itemText(i));
    return entries;
  }
  QRect PlaceOf(int id) const {
    const auto& control = Get<QWidget>(id);
    return {control.mapTo(m_sheet, QPoint(0, 0)), control.size()};
  }

  void TapIn(const QWidget& widget, QPoint at) { m_input.Tap(widget.mapTo(m_screen, at)); }
  void Tap(int id) { TapIn(Get<QWidget>(id), Get<QWidget>(id).rect().center()); }
  // Opens a list by its arrow and taps an entry of it.
  void Choose(int id, const QString& entry) {
    const auto& list = Get<QComboBox>(id);
    const Steps steps(*m_screen, {[&] {
      const QRect row = RowNamed(*m_screen->Popup(), entry);
      EXPECT_FALSE(row.isNull()) << entry.toStdString();
      m_input.Tap(row.center());
    }});
    TapIn(list, {list.width() - 6, list.height() / 2});
  }
  void TypeOver(int id, const QString& text) {
    auto& list = Get<QComboBox>(id);
    TapIn(list, {8, list.height() / 2});
    list.lineEdit()->selectAll();
    text.isEmpty() ? m_input.Key(Qt::Key_Delete) : m_input.Type(text);
  }

  ScriptedPrompt m_prompt;
  FixedClock m_clock{QDateTime(QDate(2004, 3, 30), QTime(9, 30))};
  QDate m_start{2004, 3, 30};  // a Tuesday, the 5th of its month
  RecurrencePattern m_pattern{.Type = RecurrenceType::Daily,
                              .PatternStartDate = QDate(2004, 3, 30),
                              .Interval = 3,
                              .DayOfWeekMask = 4,
                              .DayOfMonth = 30,
                              .MonthOfYear = 3};
  CRecurrenceSheet* m_sheet = nullptr;  // while it is open
};

}  // namespace quill::test
