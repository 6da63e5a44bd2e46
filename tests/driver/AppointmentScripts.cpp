// A contact's appointments end to end: added from the contact's popup, made to recur, looked at,
// changed, written on and deleted.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;

namespace {

class AppointmentScript : public testing::Test {
 protected:
  AppointmentScript() {
    m_driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Kim"}})", u"oid");
    m_driver.Do(R"({"op":"command","id":59413})");
  }

  void Run(const QByteArray& operation, int id, const QByteArray& more = {}) {
    m_driver.Do(R"({"op":")" + operation + R"(","id":)" + QByteArray::number(id) + more + '}');
  }
  void OK() { m_driver.Do(R"({"op":"ok"})"); }
  void Cancel() { m_driver.Do(R"({"op":"cancel"})"); }
  // Taps the row of a control and changes it.
  void Set(int id, const QByteArray& change) {
    Run("reveal", id);
    Run("set", id, ',' + change);
  }
  QJsonObject Control(int id) {
    return m_driver.Result(R"({"op":"get","id":)" + QByteArray::number(id) + '}', u"control")
        .toObject();
  }

  // The popup of the first row, and a choice from it.
  QJsonArray Popup() {
    m_driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
    return m_driver.Result(R"({"op":"popup"})", u"popup").toArray();
  }
  void ChooseFromPopup(int id) {
    Popup();
    Run("choose", id);
  }
  QString TopWindow() {
    return m_driver.Result(R"({"op":"windows"})", u"windows").toArray().last()[u"class"].toString();
  }
  QString Message() {
    return m_driver.Result(R"({"op":"message"})", u"message")[u"text"].toString();
  }
  bool Shows(const QString& text) {
    const QJsonValue texts = m_driver.Result(R"({"op":"texts","on":"top"})", u"texts");
    return !FindText(texts, text).isEmpty();
  }

  int PutTea(const QByteArray& more = {}) {
    return m_driver
        .Result(R"({"op":"put-appointment","fields":{"Subject":"(Kim) tea",)"
                R"("Start":"2004-02-03T09:00:00","End":"2004-02-03T10:30:00","Duration":90})" +
                    more + '}',
                u"oid")
        .toInt();
  }
  QJsonArray Stored() {
    return m_driver.Result(R"({"op":"appointments"})", u"appointments").toArray();
  }
  QJsonObject OnlyOne() {
    EXPECT_EQ(Stored().size(), 1);
    return Stored().at(0).toObject();
  }

  ReadyDriver m_driver{{QStringLiteral("--now"), QStringLiteral("2004-02-03T09:47:12")}};
};

TEST_F(AppointmentScript, OneIsAddedFromTheContactsPopupAndListedThere) {
  ChooseFromPopup(32819);
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  EXPECT_EQ(Control(1028)[u"text"], QStringLiteral("(Kim)"));
  Set(1028, R"("text":"(Kim) 저녁")");
  Set(1027, R"("time":"18:00")");
  Set(1030, R"("time":"20:30")");
  OK();
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  const QJsonValue fields = OnlyOne()[u"fields"];
  EXPECT_EQ(fields[u"Subject"], QStringLiteral("(Kim) 저녁"));
  EXPECT_EQ(fields[u"Start"], QStringLiteral("2004-02-03T18:00:00"));
  EXPECT_EQ(fields[u"End"], QStringLiteral("2004-02-03T20:30:00"));
  EXPECT_EQ(fields[u"Duration"], 150);
  const QJsonValue linked = Popup()[0];
  EXPECT_EQ(linked[u"text"], QStringLiteral("Appointment: 1"));
  EXPECT_EQ(linked[u"items"][0][u"id"], 33001);
  EXPECT_EQ(linked[u"items"][0][u"text"], QStringLiteral("(Kim) 저녁"));
}

TEST_F(AppointmentScript, ItIsWithThePopupsContactAlsoWhenTheStoreChangesUnderThePopup) {
  Popup();
  m_driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Adams"}})", u"oid");
  m_driver.Do(R"({"op":"notify","param":0})");
  m_driver.Do(R"({"op":"wait","ms":800})");
  Run("choose", 32819);
  EXPECT_EQ(Control(1028)[u"text"], QStringLiteral("(Kim)"));
  Cancel();
  m_driver.Do(R"({"op":"wait","ms":600})");
  EXPECT_EQ(m_driver.Result(R"({"op":"list"})", u"list")[u"total"], 2)
      << "and then the list follows";
}

TEST_F(AppointmentScript, ARowsControlsAreHiddenUntilItIsTapped) {
  ChooseFromPopup(32819);
  EXPECT_EQ(Control(1026)[u"visible"], false);
  EXPECT_EQ(m_driver.Error(R"({"op":"set","id":1026,"date":"2004-02-05"})"),
            QStringLiteral("hidden"));
  Run("reveal", 1026);
  EXPECT_EQ(Control(1026)[u"visible"], true);
  EXPECT_EQ(Control(1027)[u"visible"], true);
  Run("reveal", 1032);
  EXPECT_EQ(Control(1026)[u"visible"], false);
  EXPECT_EQ(m_driver.Error(R"({"op":"reveal","id":1})"), QStringLiteral("unknown"));
}

TEST_F(AppointmentScript, ARowBehindTheInputPanelIsRevealedToo) {
  ChooseFromPopup(32819);
  m_driver.Result(R"({"op":"panel","up":true})", u"panel");
  for (const int id : {1038, 1049, 1028}) {
    Run("reveal", id);
    if (id == 1049)
      Cancel();  // of the ink editor
    else
      EXPECT_EQ(Control(id)[u"visible"], true) << id;
    m_driver.Result(R"({"op":"panel","up":true})", u"panel");
  }
}

TEST_F(AppointmentScript, ADateThatIsHalfTypedAtOKIsTheOneThatWasMeant) {
  ChooseFromPopup(32819);
  Run("reveal", 1026);
  m_driver.Do(R"({"op":"type","text":"030520"})");
  OK();
  const QJsonValue stored = m_driver.Result(R"({"op":"appointments"})", u"appointments");
  EXPECT_EQ(stored[0][u"fields"][u"Start"].toString().left(10), QStringLiteral("2020-03-05"));
}

TEST_F(AppointmentScript, TheWizardMakesOneRecur) {
  ChooseFromPopup(32819);
  Set(1020, R"("index":8)");
  EXPECT_EQ(TopWindow(), QStringLiteral("RecurrenceSheet"));
  m_driver.Do(R"({"op":"tap","on":"top","x":20,"y":12})");
  Run("set", 1026, R"(,"text":"3")");
  Run("click", 1002);
  EXPECT_EQ(m_driver.Ask(R"({"op":"page"})")[u"index"], 1);
  Run("click", 1042);
  Run("set", 1045, R"(,"text":"7")");
  Run("click", 1002);
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  EXPECT_EQ(Control(1020)[u"index"], 8);
  OK();
  const QJsonValue recurrence = OnlyOne()[u"recurrence"];
  EXPECT_EQ(recurrence[u"RecurrenceType"], 0);
  EXPECT_EQ(recurrence[u"Interval"], 3);
  EXPECT_EQ(recurrence[u"NoEndDate"], false);
  EXPECT_EQ(recurrence[u"Occurrences"], 7);
}

TEST_F(AppointmentScript, ACancelledWizardLeavesTheChoiceAsItWas) {
  const int oid = PutTea();
  ChooseFromPopup(33001);
  Run("command", 1000);
  Set(1020, R"("index":1)");
  Set(1020, R"("index":8)");
  Run("click", 2);
  EXPECT_EQ(Control(1020)[u"index"], 0);
  OK();
  EXPECT_EQ(OnlyOne()[u"oid"], oid);
  EXPECT_TRUE(OnlyOne()[u"recurrence"].isNull());
}

TEST_F(AppointmentScript, ThePreviewLeadsToTheDialogThatChangesIt) {
  PutTea();
  ChooseFromPopup(33001);
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentPreviewDlg"));
  EXPECT_TRUE(Shows(QStringLiteral("(Kim) tea")));
  EXPECT_TRUE(Shows(QStringLiteral("2004.02.03(Tue),AM 9:00")));
  EXPECT_TRUE(Shows(QStringLiteral("~ 2004.02.03(Tue),AM 10:30")));
  m_driver.Do(R"({"op":"tap","on":"top","x":226,"y":26})");
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  Set(1028, R"("text":"(Kim) coffee")");
  OK();
  EXPECT_EQ(OnlyOne()[u"fields"][u"Subject"], QStringLiteral("(Kim) coffee"));
}

TEST_F(AppointmentScript, ThePreviewDeletesItWithoutAQuestion) {
  PutTea();
  ChooseFromPopup(33001);
  m_driver.Do(R"({"op":"tap","on":"top","x":226,"y":49})");
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  EXPECT_TRUE(Stored().isEmpty());
  EXPECT_EQ(Popup()[0][u"text"], QStringLiteral("Appointment: 0"));
}

TEST_F(AppointmentScript, HandwritingIsStoredWithItAndSeenInThePreview) {
  PutTea();
  ChooseFromPopup(33001);
  Run("command", 1000);
  Run("reveal", 1049);
  EXPECT_EQ(TopWindow(), QStringLiteral("InkMemoDialog"));
  m_driver.Do(R"({"op":"stroke","on":"ink","points":[[20,30,0.4],[40,50,0.6],[60,30,0.5]]})");
  OK();
  OK();
  EXPECT_FALSE(OnlyOne()[u"fields"][u"BodyInk"].toString().isEmpty());
  ChooseFromPopup(33001);
  const QJsonValue ink = m_driver.Result(R"({"op":"ink"})", u"ink");
  EXPECT_EQ(ink[u"strokes"], 1);
  EXPECT_EQ(ink[u"readOnly"], true);
}

TEST_F(AppointmentScript, InkThatTheStoreRefusesIsToldAndTheDialogStays) {
  PutTea();
  ChooseFromPopup(33001);
  Run("command", 1000);
  m_driver.Do(R"({"op":"fault","name":"appointment-ink","on":true})");
  Run("reveal", 1049);
  m_driver.Do(R"({"op":"stroke","on":"ink","points":[[20,30],[40,50]]})");
  OK();
  EXPECT_EQ(Message(), QStringLiteral("Cannot save. Memo exceeded memory limitation."));
  OK();
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  OK();
  EXPECT_TRUE(OnlyOne()[u"fields"][u"BodyInk"].toString().isEmpty());
}

TEST_F(AppointmentScript, OneThatCannotBeSavedStaysOpenUntilItCan) {
  ChooseFromPopup(32819);
  m_driver.Do(R"({"op":"fault","name":"save-appointment","on":true})");
  OK();
  EXPECT_EQ(Message(),
            QStringLiteral("Cannot save. Please check the Start/End date and Recurrence pattern."));
  OK();
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentDlg"));
  EXPECT_TRUE(Stored().isEmpty());
  m_driver.Do(R"({"op":"fault","name":"save-appointment","on":false})");
  OK();
  EXPECT_EQ(Stored().size(), 1);
}

TEST_F(AppointmentScript, OneThatIsGoneMeanwhileIsAnEmptyPreview) {
  const int oid = PutTea();
  Popup();
  m_driver.Do(R"({"op":"drop-appointment","quiet":true,"oid":)" + QByteArray::number(oid) + '}');
  Run("choose", 33001);
  EXPECT_EQ(TopWindow(), QStringLiteral("AppointmentPreviewDlg"));
  EXPECT_FALSE(Shows(QStringLiteral("(Kim) tea")));
  Cancel();
  EXPECT_EQ(TopWindow(), QStringLiteral("MainFrame"));
  EXPECT_TRUE(Stored().isEmpty());
}

}  // namespace
