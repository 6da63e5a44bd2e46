// The whole program without a pen.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class KeyboardScript : public testing::Test {
 protected:
  KeyboardScript() {
    for (const char* name : {"Adams", "Gray", "박지성", "Zed"})
      m_driver.Result(QByteArray(R"({"op":"put","quiet":true,"fields":{"FileAs":")") + name +
                          R"(","Categories":"가족"}})",
                      u"oid");
    m_driver.Do(R"({"op":"command","id":59413})");
  }

  void Press(const QByteArray& keys) {
    for (const QByteArray& key : keys.split(' '))
      m_driver.Do(R"({"op":"key","key":")" + key + "\"}");
  }
  void Type(const QByteArray& text) { m_driver.Do(R"({"op":"type","text":")" + text + "\"}"); }
  QJsonObject List() { return m_driver.Result(R"({"op":"list"})", u"list").toObject(); }
  qsizetype SelectedCount() { return List().value(u"selected").toArray().size(); }
  QString TopWindow() {
    return m_driver.Result(R"({"op":"windows"})", u"windows").toArray().last()[u"class"].toString();
  }
  QJsonArray Popup() { return m_driver.Result(R"({"op":"popup"})", u"popup").toArray(); }

  ReadyDriver m_driver;
};

TEST_F(KeyboardScript, SeveralRowsAreSelectedAndDeleted) {
  Press("Down Shift+Down Shift+Down");
  EXPECT_EQ(SelectedCount(), 3);
  Press("Shift+Up");
  EXPECT_EQ(SelectedCount(), 2);
  Press("Delete");
  EXPECT_EQ(TopWindow(), QStringLiteral("DeleteConfirmDlg"));
  Press("Return");
  EXPECT_EQ(List().value(u"total"), 2);
}

TEST_F(KeyboardScript, AContactIsMadeFilledAndSaved) {
  Press("Ctrl+N Down Down Down");
  Type("지성");
  Press("Tab Tab Tab Tab");
  Type("직함");
  Press("Ctrl+PageDown Ctrl+PageUp Ctrl+Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  const QJsonObject fields = m_driver.Result(R"({"op":"contact","oid":5})", u"fields").toObject();
  EXPECT_EQ(fields.value(u"FirstName"), QStringLiteral("지성"));
  EXPECT_EQ(fields.value(u"JobTitle"), QStringLiteral("직함"));
}

TEST_F(KeyboardScript, TheRowsMenuTheCardAndTheContactOpen) {
  Press("Down Down Shift+F10");
  EXPECT_EQ(Popup()[3].toObject().value(u"text"), QStringLiteral("Add Appoint..."));
  Press("Escape Right");
  EXPECT_FALSE(m_driver.Result(R"({"op":"card"})", u"card").isNull());
  Press("Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("EditRecordSheet"));
  Press("Ctrl+W");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
}

TEST_F(KeyboardScript, TheIndexTheCategoriesAndTheSearchBoxAreReached) {
  Press("Ctrl+2");
  EXPECT_EQ(List().value(u"indexButton"), 2);
  EXPECT_EQ(List().value(u"total"), 1);
  Press("Ctrl+G");
  EXPECT_EQ(Popup()[0].toObject().value(u"text"), QStringLiteral("Show All"));
  Press("Escape Ctrl+F");
  Type("Ze");
  Press("Return");
  EXPECT_EQ(List().value(u"total"), 1);
}

TEST_F(KeyboardScript, TheMenuBarBeginsAtItsFirstItemAndTheTitlesMenuImports) {
  Press("Down F10 Right Down Down Return");
  EXPECT_EQ(List().value(u"mode"), 2);
  Press("Ctrl+F10 I Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("FileListDlg"));
  Press("Ctrl+W");
}

TEST_F(KeyboardScript, AnAppointmentIsMadeWithAChosenDayAndRecurrence) {
  Press("Down Shift+F10 A Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  Press("Down Return F4");
  EXPECT_EQ(TopWindow(), QStringLiteral("CalendarDlg"));
  Press("Right Return Ctrl+Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  EXPECT_EQ(m_driver.Result(R"({"op":"appointments"})", u"appointments").toArray().size(), 1);
}

TEST_F(KeyboardScript, ANoteIsTypedSwitchedAndSaved) {
  Press("Down Shift+F10 End Up Up Up Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("InkMemoDialog"));
  Type("회의 note");
  const auto ink = [this] { return m_driver.Result(R"({"op":"ink"})", u"ink").toObject(); };
  const int toggle = ink().value(u"toggle").toInt();
  const int view = ink().value(u"view").toInt();
  Press("Ctrl+T Ctrl+L");
  EXPECT_NE(ink().value(u"toggle").toInt(), toggle);
  EXPECT_NE(ink().value(u"view").toInt(), view);
  EXPECT_EQ(ink().value(u"text"), QStringLiteral("회의 note"));
  Press("Ctrl+Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("NameEntryDlg"));
  Press("Return");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
}

TEST_F(KeyboardScript, ThePanelComesAndGoes) {
  Press("F9");
  EXPECT_EQ(m_driver.Result(R"({"op":"panel"})", u"panel"), true);
  Press("F9");
  EXPECT_EQ(m_driver.Result(R"({"op":"panel"})", u"panel"), false);
}

TEST_F(KeyboardScript, WhatIsTypedIntoANewContactAtOnceIsItsName) {
  Press("Ctrl+N");
  Type("Minsu");
  Press("Ctrl+Return");
  const QJsonObject fields = m_driver.Result(R"({"op":"contact","oid":5})", u"fields").toObject();
  EXPECT_EQ(fields.value(u"FirstName"), QStringLiteral("Minsu"));
}

TEST_F(KeyboardScript, EscapeEndsAPartThenARowAndThenTheSheet) {
  Press("Ctrl+N");
  Type("Minsu");
  Press("Escape Tab Tab Tab Tab Tab Tab Tab");
  Type("Pilot");
  Press("Escape");
  EXPECT_EQ(TopWindow(), QStringLiteral("EditRecordSheet"));
  const QJsonArray rows = m_driver.Result(R"({"op":"rows"})", u"rows").toArray();
  EXPECT_EQ(rows[0][u"value"], QStringLiteral("Minsu "));
  EXPECT_EQ(rows[1][u"value"], QStringLiteral("Pilot"));
  Press("Escape");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  EXPECT_EQ(List().value(u"total"), 4);
}

TEST_F(KeyboardScript, ADraftThatThePanelHidesIsShownThenRestored) {
  Press("Ctrl+N Down Down Down Down Down Down Down");
  Type("직함");
  Press("Ctrl+Return Ctrl+N Tab Tab Tab Tab Tab Tab Tab");
  EXPECT_EQ(m_driver.Result(R"({"op":"panel"})", u"panel"), true);
  Press("Ctrl+R Ctrl+R");
  EXPECT_EQ(m_driver.Result(R"({"op":"rows"})", u"rows").toArray()[1].toObject().value(u"value"),
            QStringLiteral("직함"));
}

TEST_F(KeyboardScript, ADraftThatIsOfferedIsRestored) {
  Press("Ctrl+N Down Down Down Down Down Down Down");
  Type("직함");
  Press("Ctrl+Return Ctrl+N");
  m_driver.Result(R"({"op":"panel","up":false})", u"panel");
  Press("Ctrl+R");
  EXPECT_EQ(m_driver.Result(R"({"op":"rows"})", u"rows").toArray()[1].toObject().value(u"value"),
            QStringLiteral("직함"));
}

}  // namespace
