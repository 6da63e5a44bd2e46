#include "store/AppointmentFields.h"

#include <gtest/gtest.h>

#include <QSet>

namespace quill {
namespace {

template <typename Rows>
QSet<QString> NamesOf(const Rows& rows) {
  QSet<QString> names;
  for (const auto& row : rows) names.insert(row.Property.toString());
  return names;
}

TEST(AppointmentFields, EveryPropertyHasItsOwnName) {
  EXPECT_EQ(NamesOf(kAppointmentFields).size(), qsizetype{kAppointmentFields.size()});
  EXPECT_EQ(NamesOf(kPatternFields).size(), qsizetype{kPatternFields.size()});
  EXPECT_FALSE(NamesOf(kAppointmentFields).intersects(NamesOf(kAppointmentImportFields)));
  EXPECT_FALSE(NamesOf(kAppointmentFields).contains(QString()));
}

// Members that a row could hold twice would leave another one out.
template <typename Rows>
bool EveryMemberHasOneRow(const Rows& rows) {
  for (std::size_t a = 0; a < rows.size(); ++a) {
    for (std::size_t b = a + 1; b < rows.size(); ++b) {
      if (rows[a].Member == rows[b].Member) return false;
    }
  }
  return true;
}

TEST(AppointmentFields, EveryMemberHasOneRow) {
  EXPECT_TRUE(EveryMemberHasOneRow(kAppointmentFields));
  EXPECT_TRUE(EveryMemberHasOneRow(kAppointmentImportFields));
  EXPECT_TRUE(EveryMemberHasOneRow(kPatternFields));
}

TEST(AppointmentFields, APropertyIsFoundByItsMember) {
  EXPECT_EQ(PropertyOf(&AppointmentItem::Subject), u"Subject");
  EXPECT_EQ(PropertyOf(&AppointmentItem::Categories), u"Categories");
  EXPECT_EQ(PropertyOf(&AppointmentItem::End), u"End");
  EXPECT_EQ(PropertyOf(&AppointmentItem::ReminderMinutesBeforeStart),
            u"ReminderMinutesBeforeStart");
  EXPECT_EQ(PropertyOf(&AppointmentItem::Uid), u"");
}

TEST(AppointmentItem, StartsAsANewOneDoes) {
  const AppointmentItem item;
  EXPECT_EQ(item.Id, 0);
  EXPECT_EQ(item.Start.Year, 0);
  EXPECT_EQ(item.BusyStatus, 2);
  EXPECT_FALSE(item.AllDayEvent);
  EXPECT_FALSE(item.ReminderSet);
  EXPECT_FALSE(item.ReminderSoundFile);
  EXPECT_FALSE(item.Recurrence);
}

}  // namespace
}  // namespace quill
