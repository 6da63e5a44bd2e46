// The handwriting of an appointment, through its dialog.
#include <QAbstractButton>
#include <QLabel>

#include "appointments_ui/AppointmentDlgFixture.h"
#include "ink/InkFormat.h"
#include "ink/InkRecovery.h"
#include "ink/ui/InkX.h"
#include "platform/ui/OfferBar.h"
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

// What a run leaves that ends at any moment.
class AppointmentInkKeeping : public AppointmentMemo {
 protected:
  test::Step Draw() {
    return [this] {
      InkStroke dot;
      dot.Points = {{.X = 320, .Y = 320}};
      Ink().Document().AddStroke(dot, {});
    };
  }
  test::Step End() {
    return [this] { m_screen->CloseAll(); };
  }
  // How many strokes; nothing: none are kept.
  std::optional<std::size_t> Kept(Oid oid) const {
    const auto ink = FindUnsavedInk(AppointmentInkRecoveryName(oid));
    return ink ? std::optional(ink->Note.Strokes.size()) : std::nullopt;
  }
  // What an earlier run left.
  void Leave(Oid oid, const QString& owner = {}) {
    InkDocument document;
    document.AddStroke({.Points = {{.X = 320, .Y = 320}}}, {});
    EXPECT_TRUE(WriteUnsavedInk(AppointmentInkRecoveryName(oid), document.Note(), owner));
  }
  QString OfferText() { return Dialog().findChild<COfferBar*>()->findChild<QLabel*>()->text(); }
  test::Step Restore() {
    return [this] { Get<QAbstractButton>(InkIds::kRestore).click(); };
  }
  bool IsOffered() { return Dialog().Control(InkIds::kRestore) != nullptr; }
};

TEST_F(AppointmentInkKeeping, StaysWhenTheProgramEndsInTheEditor) {
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), End()});
  EXPECT_EQ(Kept(oid), 1U);
}

TEST_F(AppointmentInkKeeping, StaysWhenTheProgramEndsBeforeTheAppointmentIsStored) {
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), OK(), End()});
  EXPECT_EQ(Kept(oid), 1U);
}

TEST_F(AppointmentInkKeeping, OfACancelledEditorIsWhatItWasBefore) {
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), OK(), OpenMemo(), Draw(), Draw(), Cancel(), End()});
  EXPECT_EQ(Kept(oid), 1U);
}

TEST_F(AppointmentInkKeeping, EndsWhenTheAppointmentIsStored) {
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), OK(), [&] { EXPECT_EQ(Kept(oid), 1U); }, OK()});
  EXPECT_EQ(Kept(oid), std::nullopt);
}

TEST_F(AppointmentInkKeeping, EndsWhenTheAppointmentIsGivenUp) {
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), OK(), Cancel()});
  EXPECT_EQ(Kept(oid), std::nullopt);
}

TEST_F(AppointmentInkKeeping, EndsWhenTheNoteIsDeleted) {
  m_prompt.Expect(PromptAnswer::Yes);
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), [&] { Dialog().RunCommand(ID_INK_DELETE_NOTE); }, End()});
  EXPECT_EQ(Kept(oid), std::nullopt);
}

TEST_F(AppointmentInkKeeping, StaysWhereTheStoreRefusesTheAppointment) {
  m_prompt.Expect(PromptAnswer::OK);
  const Oid oid = Add(Tea());
  Edit(oid, {OpenMemo(), Draw(), OK(), [&] { m_store.OfCalendar().Save = true; }, OK(),
             [&] { EXPECT_EQ(Kept(oid), 1U); }, Cancel()});
}

TEST_F(AppointmentInkKeeping, IsOfferedToTheAppointmentInALaterRun) {
  const Oid oid = Add(Tea());
  Leave(oid);
  Edit(oid, {OpenMemo(), [&] { EXPECT_EQ(OfferText(), QStringLiteral("Unsaved ink from 09:47")); },
             Restore(), OK(), OK()});
  EXPECT_EQ(ReadInk(Stored(oid).BodyInk).Note.Strokes.size(), 1U);
  EXPECT_EQ(Kept(oid), std::nullopt);
}

TEST_F(AppointmentInkKeeping, IsNotOfferedToTheDialogThatItIsOf) {
  Edit(Add(Tea()), {OpenMemo(), Draw(), OK(), OpenMemo(),
                    [&] {
                      EXPECT_FALSE(IsOffered());
                      EXPECT_EQ(Ink().Document().Note().Strokes.size(), 1U);
                    },
                    Cancel(), Cancel()});
}

TEST_F(AppointmentInkKeeping, OfANewOneSaysItsSubject) {
  Add({OpenMemo(), Draw(), End()});
  EXPECT_EQ(FindUnsavedInk(AppointmentInkRecoveryName(0)).value_or(UnsavedInk()).Owner,
            QStringLiteral("(Kim)"));
}

TEST_F(AppointmentInkKeeping, OfANewOneGoesIntoTheNextNewOne) {
  Leave(0, QStringLiteral("(Kim)"));
  AddFor(QStringLiteral("Lee"),
         {OpenMemo(), [&] { EXPECT_EQ(OfferText(), QStringLiteral("Not saved: (Kim), 09:47")); },
          Restore(), OK(), OK()});
  EXPECT_EQ(ReadInk(Only().BodyInk).Note.Strokes.size(), 1U);
  EXPECT_EQ(Kept(0), std::nullopt);
}

}  // namespace
}  // namespace quill
