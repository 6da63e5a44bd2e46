#include "driver/ControlState.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QListWidget>

#include "platform/ui/CheckList.h"
#include "platform/ui/DatePicker.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill::driver {
namespace {

class ControlStateTest : public test::ScreenFixture {
 protected:
  QJsonValue Value(QWidget& control, QStringView key) {
    return ControlJson(1000, control, control.geometry()).value(key);
  }
  static std::string Text(const QJsonValue& array) {
    return QJsonDocument(array.toArray()).toJson(QJsonDocument::Compact).toStdString();
  }

  test::SampleFrame m_frame{*m_screen};
};

TEST_F(ControlStateTest, ACheckListGivesItsItemsAndTheCurrentOne) {
  CCheckList list(QStringLiteral("Choice"), &m_frame);
  list.SetItems({{QStringLiteral("Work"), true}, {QStringLiteral("Club")}});
  EXPECT_EQ(Text(Value(list, u"items")),
            R"([{"checked":true,"text":"Work"},{"checked":false,"text":"Club"}])");
  EXPECT_EQ(Value(list, u"index").toInt(), -1);
  list.SetCurrent(1);
  EXPECT_EQ(Value(list, u"index").toInt(), 1);
  EXPECT_EQ(Value(list, u"class").toString(), QStringLiteral("CheckList"));
}

TEST_F(ControlStateTest, AListGivesItsItemsAndTheSelectedOne) {
  QListWidget list(&m_frame);
  list.addItems({QStringLiteral("Phone"), QStringLiteral("Desk")});
  EXPECT_EQ(Text(Value(list, u"items")), R"(["Phone","Desk"])");
  EXPECT_EQ(Value(list, u"index").toInt(), -1);
  list.setCurrentRow(1);
  EXPECT_EQ(Value(list, u"index").toInt(), 1);
}

TEST_F(ControlStateTest, ADateGivesTheDayItShowsAndWhetherThereIsOne) {
  CDatePicker date(NoneCheck::Shown, &m_frame);
  date.SetDate(std::nullopt, {2004, 9, 15});
  EXPECT_EQ(Value(date, u"date").toString(), QStringLiteral("2004-09-15"));
  EXPECT_EQ(Value(date, u"checked"), QJsonValue(false));
  date.SetDate(QDate(2001, 2, 3), {});
  EXPECT_EQ(Value(date, u"date").toString(), QStringLiteral("2001-02-03"));
  EXPECT_EQ(Value(date, u"checked"), QJsonValue(true));
  EXPECT_EQ(Value(date, u"class").toString(), QStringLiteral("DatePicker"));
}

TEST_F(ControlStateTest, ADateThatIsAlwaysThereHasNoCheck) {
  const QJsonObject plain = [this] {
    CDatePicker date(NoneCheck::Absent, &m_frame);
    return ControlJson(1000, date, date.geometry());
  }();
  EXPECT_TRUE(plain.contains(u"date"));
  EXPECT_FALSE(plain.contains(u"checked"));
}

TEST_F(ControlStateTest, AnEditorHasATextAndNoItems) {
  QLineEdit edit(QStringLiteral("some"), &m_frame);
  EXPECT_EQ(Value(edit, u"text").toString(), QStringLiteral("some"));
  EXPECT_TRUE(Value(edit, u"items").isUndefined());
}

}  // namespace
}  // namespace quill::driver
