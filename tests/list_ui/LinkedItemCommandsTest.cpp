#include "list/ui/LinkedItemCommands.h"

#include "ViewFixture.h"
#include "appointments/ContactLink.h"
#include "ink/ui/InkX.h"
#include "list/ContactPopup.h"
#include "list/Selection.h"
#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "platform/ui/PaintedWindow.h"
#include "resources/AppointmentIds.h"
#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class LinkedItemCommandsTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
    Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
    FixMemoFolder(g_memo);
    g_linkedItems = {};
  }
  void TearDown() override { g_linkedItems = {}; }

  QString Path(const QString& name) const { return MemoPath(g_memo, name); }
  // Puts ink into the memo editor on top and presses OK.
  test::Step Write(const QByteArray& ink) {
    return [this, ink] {
      auto* const control = m_screen->Topmost()->findChild<InkX*>();
      ASSERT_NE(control, nullptr);
      control->SetData(ink);
      m_screen->Topmost()->OnOK();
    };
  }
  test::Step OK() {
    return [this] { m_screen->Topmost()->OnOK(); };
  }
  void Run(int id, std::vector<test::Step> steps) {
    const test::Steps running(*m_screen, std::move(steps));
    m_frame->RunCommand(id);
  }

  test::ScriptedPrompt m_prompt;
  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
};

TEST_F(LinkedItemCommandsTest, AMemoIsAddedUnderTheNameOfTheCurrentRowsContact) {
  SelectRow(g_list, 1);
  Run(ID_ADD_MEMO, {Write("ink"), OK()});
  EXPECT_EQ(AllMemos(g_memo), QStringList{QStringLiteral("Lee_20040915_093005.pwi")});
}

TEST_F(LinkedItemCommandsTest, ASecondMemoOfTheSameSecondTakesThePlaceOfTheFirstAsIntended) {
  SelectRow(g_list, 0);
  Run(ID_ADD_MEMO, {Write("first"), OK()});
  Run(ID_ADD_MEMO, {Write("second"), OK()});
  EXPECT_EQ(AllMemos(g_memo).size(), 1);
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_20040915_093005.pwi"))),
            "second");
}

TEST_F(LinkedItemCommandsTest, TheTimeIsThatOfTheCommand) {
  SelectRow(g_list, 0);
  Run(ID_ADD_MEMO, {[this] { m_clock.Set(m_clock.Now().addSecs(60)); }, Write("ink"), OK()});
  EXPECT_EQ(AllMemos(g_memo), QStringList{QStringLiteral("Kim_20040915_093005.pwi")});
}

TEST_F(LinkedItemCommandsTest, AMemoOfThePopupIsOpenedByItsNumber) {
  for (const char* name : {"Kim_2.pwi", "Kim_1.pwi"})
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(Path(QLatin1String(name)), {}));
  g_linkedItems = FindLinkedItems(QStringLiteral("Kim"));
  Run(33202, {Write("other")});
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_2.pwi"))), "other");
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_1.pwi"))), QByteArray());
}

TEST_F(LinkedItemCommandsTest, AMemoThatIsGoneIsNotOpened) {
  g_linkedItems.Memos = {QStringLiteral("Kim_1.pwi")};
  m_prompt.Expect(PromptAnswer::OK);
  m_frame->RunCommand(33201);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("The memo could not be read."));
}

TEST_F(LinkedItemCommandsTest, WithoutARowOrALinkedMemoNothingHappens) {
  for (const int id : {32820, 33201, 33400}) m_frame->RunCommand(id, CommandCheck::Anyway);
  EXPECT_TRUE(AllMemos(g_memo).isEmpty());
}

TEST_F(LinkedItemCommandsTest, OverMemosNoneIsAddedToAContact) {
  ASSERT_TRUE(m_deviceHome.Files.WriteWhole(Path(QStringLiteral("a.pwi")), "a"));
  View().ShowMode(ViewMode::ByMemo);
  SelectRow(g_list, 0);
  m_frame->RunCommand(ID_ADD_MEMO, CommandCheck::Anyway);
  EXPECT_EQ(AllMemos(g_memo).size(), 1);
}

class LinkedAppointments : public LinkedItemCommandsTest {
 protected:
  void SetUp() override {
    LinkedItemCommandsTest::SetUp();
    m_oids = {Add(QStringLiteral("(Kim) tea")), Add(QStringLiteral("(Kim) dinner"))};
    g_linkedItems = FindLinkedItems(QStringLiteral("Kim"));
    m_store.Counts() = {};
  }

  static Oid Add(const QString& subject) {
    const CalendarDate start = MakeCalendarDate({2004, 9, 15}, {10, 0});
    AppointmentItem item{.Subject = subject, .Start = start, .End = start, .BodyInk = "ink"};
    item.Recurrence = PatternOf(item);
    return SaveAppointment(item) ? item.Id : 0;
  }
  static std::vector<Oid> Stored() { return FindContactAppointments(QStringLiteral("Kim")); }
  // Whether the window on top is a preview that says this.
  bool Shows(const QString& text) const {
    const auto* const face = m_screen->Topmost()->findChild<CPaintedWindow*>();
    return face && RowNamed(*face, text).isValid();
  }
  test::Step Choose(int command) {
    return [this, command] { m_screen->Topmost()->RunCommand(command); };
  }
  test::Step Cancel() {
    return [this] { m_screen->Topmost()->OnCancel(); };
  }
  test::Step Delete() { return Choose(AppointmentPreviewIds::kDelete); }
  test::Step Modify() { return Choose(AppointmentPreviewIds::kModify); }
  // Of the appointment dialog.
  QString Subject() const {
    auto* const edit =
        qobject_cast<QLineEdit*>(m_screen->Topmost()->Control(AppointmentIds::kSubject));
    return edit ? edit->text() : QString();
  }

  std::vector<Oid> m_oids;
};

TEST_F(LinkedAppointments, AreShownByTheirNumber) {
  Run(33001, {[this] { EXPECT_TRUE(Shows(QStringLiteral("(Kim) tea"))); }, Cancel()});
  Run(33002, {[this] { EXPECT_TRUE(Shows(QStringLiteral("(Kim) dinner"))); }, Cancel()});
  EXPECT_EQ(Stored(), m_oids);
}

TEST_F(LinkedAppointments, AreTwoHundredAtMost) {
  g_linkedItems.Appointments = std::vector<Oid>(199, m_oids[0]);
  g_linkedItems.Appointments.push_back(m_oids[1]);
  Run(33200, {[this] { EXPECT_TRUE(Shows(QStringLiteral("(Kim) dinner"))); }, Cancel()});
}

TEST_F(LinkedAppointments, ANewOneBeginsWithTheNameOfTheCurrentRowsContact) {
  SelectRow(g_list, 1);
  Run(32819, {[this] { EXPECT_EQ(Subject(), QStringLiteral("(Lee)")); }, Cancel()});
  EXPECT_EQ(Stored(), m_oids);
}

TEST_F(LinkedAppointments, NoneIsMadeWithoutARowOrOverMemos) {
  g_list.CurrentRow = -1;
  m_frame->RunCommand(32819);
  View().ShowMode(ViewMode::ByMemo);
  m_frame->RunCommand(32819, CommandCheck::Anyway);
  EXPECT_EQ(m_screen->Topmost(), m_frame.get());
}

TEST_F(LinkedAppointments, NoneIsOpenedOverMemos) {
  g_list.Mode = ViewMode::ByMemo;
  m_frame->RunCommand(33001, CommandCheck::Anyway);
  EXPECT_EQ(m_screen->Topmost(), m_frame.get());
}

TEST_F(LinkedAppointments, ModifyInThePreviewOpensThatOne) {
  Run(33002,
      {Modify(), [this] { EXPECT_EQ(Subject(), QStringLiteral("(Kim) dinner")); }, Cancel()});
  EXPECT_EQ(Stored(), m_oids);
}

TEST_F(LinkedAppointments, DeleteInThePreviewDeletesThatOneAtOnce) {
  Run(33001, {Delete()});
  EXPECT_EQ(Stored(), std::vector<Oid>({m_oids[1]}));
  EXPECT_TRUE(m_prompt.Shown().empty());
}

TEST_F(LinkedAppointments, ADeletionIsCountedWhenThePopupOpensAgain) {
  Run(33001, {Delete()});
  EXPECT_EQ(g_linkedItems.AppointmentCount, 2);
  EXPECT_EQ(m_store.Counts(), test::StoreCounts{}) << "the list is not built again";
  BuildRowPopup(g_list, 0, m_frame->Route());
  EXPECT_EQ(g_linkedItems.AppointmentCount, 1);
  EXPECT_EQ(g_linkedItems.Appointments, std::vector<Oid>({m_oids[1]}));
}

TEST_F(LinkedAppointments, OneThatGoesWhileItIsShownIsNotMissed) {
  Run(33001, {[this] { EXPECT_TRUE(DeleteAppointment(m_oids[0])); }, Delete()});
  EXPECT_EQ(Stored(), std::vector<Oid>({m_oids[1]}));
}

TEST_F(LinkedAppointments, OneThatIsGoneIsAnEmptyPreviewThatDeletesNothing) {
  ASSERT_TRUE(DeleteAppointment(m_oids[0]));
  Run(33001, {[this] {
                EXPECT_FALSE(Shows(QStringLiteral("(Kim) tea")));
                EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("Memo"));
              },
              Delete()});
  EXPECT_EQ(Stored(), std::vector<Oid>({m_oids[1]}));
}

TEST_F(LinkedAppointments, WithoutOneOfThisNumberNothingHappens) {
  for (const int id : {33003, 33200}) m_frame->RunCommand(id);
  EXPECT_EQ(m_screen->Topmost(), m_frame.get());
  EXPECT_EQ(Stored(), m_oids);
}

}  // namespace
}  // namespace quill
