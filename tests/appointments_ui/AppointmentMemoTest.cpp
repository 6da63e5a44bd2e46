// The handwriting of an appointment, through its dialog.
#include "appointments_ui/AppointmentDlgFixture.h"
#include "ink/ui/InkX.h"
#include "resources/Ids.h"

namespace quill {
namespace {

// The ink editor on top.
class AppointmentMemo : public test::AppointmentDlgFixture {
 protected:
  test::Step OpenMemo() {
    return [this] { Rows().ActivateRow(static_cast<int>(AppointmentRow::Memo)); };
  }
  InkX& Ink() { return *Dialog().findChild<InkX*>(); }
};

TEST_F(AppointmentMemo, OfTheAppointmentIsStoredWithIt) {
  AppointmentItem item = Tea();
  item.BodyInk = "a note";
  const AppointmentItem saved = Saved(item, {OpenMemo(),
                                             [&] {
                                               EXPECT_EQ(Ink().Data(), QByteArray("a note"));
                                               Ink().SetData("another note");
                                             },
                                             OK()});
  EXPECT_EQ(saved.BodyInk, QByteArray("another note"));
  EXPECT_TRUE(g_memo.Buffer.isEmpty());
}

TEST_F(AppointmentMemo, IsNotStoredWhenTheDialogIsCancelled) {
  AppointmentItem item = Tea();
  item.BodyInk = "a note";
  const Oid oid = Add(item);
  Edit(oid, {OpenMemo(), [&] { Ink().SetData("another note"); }, OK(), Cancel()});
  EXPECT_EQ(Stored(oid).BodyInk, QByteArray("a note"));
}

TEST_F(AppointmentMemo, OfACancelledEditorStaysAsItWas) {
  AppointmentItem item = Tea();
  item.BodyInk = "a note";
  const AppointmentItem saved =
      Saved(item, {OpenMemo(), [&] { Ink().SetData("another note"); }, Cancel()});
  EXPECT_EQ(saved.BodyInk, QByteArray("a note"));
}

TEST_F(AppointmentMemo, DeletedInTheEditorIsGoneFromTheAppointment) {
  m_prompt.Expect(PromptAnswer::Yes);
  AppointmentItem item = Tea();
  item.BodyInk = "a note";
  const AppointmentItem saved =
      Saved(item, {OpenMemo(), [&] { Dialog().RunCommand(ID_INK_DELETE_NOTE); }});
  EXPECT_EQ(saved.BodyInk, QByteArray());
}

TEST_F(AppointmentMemo, AboveTheStoresLimitIsToldAndTheAppointmentStaysOpenWithoutIt) {
  m_prompt.Expect(PromptAnswer::OK);
  AppointmentItem item = Tea();
  item.BodyInk = "a note";
  const AppointmentItem saved = Saved(
      item,
      {OpenMemo(),
       [&] { Ink().SetData(QByteArray(PimStoreOptions().AppointmentInkLimit + 1, 'x')); }, OK(),
       [&] {
         ASSERT_EQ(m_prompt.Shown().size(), 1U);
         EXPECT_EQ(m_prompt.Shown()[0].Text,
                   QStringLiteral("Cannot save. Memo exceeded memory limitation."));
         EXPECT_EQ(m_prompt.Shown()[0].Icon, PromptIcon::Warning);
       }});
  EXPECT_EQ(saved.BodyInk, QByteArray("a note"));
}

TEST_F(AppointmentMemo, ThatWasRefusedIsThereAgainToBeShortened) {
  m_prompt.Expect(PromptAnswer::OK);
  const QByteArray tooMuch(PimStoreOptions().AppointmentInkLimit + 1, 'x');
  const AppointmentItem saved = Saved(
      Tea(), {OpenMemo(), [&] { Ink().SetData(tooMuch); }, OK(), OpenMemo(),
              [&] {
                EXPECT_EQ(Ink().Data(), tooMuch);
                Ink().SetData("short");
              },
              OK(), OpenMemo(), [&] { EXPECT_EQ(Ink().Data(), QByteArray("short")); }, Cancel()});
  EXPECT_EQ(saved.BodyInk, QByteArray("short"));
}

}  // namespace
}  // namespace quill
