// What the memo editor writes beside a memo's file, so that what lies there stays.
#include "ink/InkFormat.h"
#include "memo_ui/InkMemoFixture.h"

namespace quill {
namespace {

using test::kNote;
using test::kOther;
using InkMemoSaving = test::InkMemoFixture;

const QString kMeanwhile =
    QStringLiteral("The memo was changed meanwhile. Please give this one a new name.");
const QString kRemoved =
    QStringLiteral("The memo was deleted meanwhile. Please give this one a name.");
const QString kUnread = QStringLiteral(
    "Not all of the memo can be read, so it stays. Please give this one a new name.");

TEST_F(InkMemoSaving, AMemoThatOthersChangedMeanwhileIsSavedBesideTheirs) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Edit({Write(kOther), [&] { Put(Path(u"a.pwi"), "theirs"); }, OK(),
                  [&] {
                    EXPECT_EQ(m_prompt.Shown()[0].Text, kMeanwhile);
                    EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("Save As"));
                    EnterName(Path(u"b.pwi"));
                  }}),
            kResultOK);
  EXPECT_EQ(m_proposed, Path(u"a_Copy.pwi"));
  EXPECT_EQ(Content(Path(u"a.pwi")), "theirs");
  EXPECT_EQ(Content(Path(u"b.pwi")), kOther);
}

TEST_F(InkMemoSaving, AMemoThatOthersRemovedMeanwhileIsOfferedItsOwnName) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Edit({Write(kOther), [&] { ASSERT_TRUE(m_home.Files.Remove(Path(u"a.pwi"))); }, OK(),
                  [&] {
                    EXPECT_EQ(m_prompt.Shown()[0].Text, kRemoved);
                    EnterName(Path(u"a.pwi"));
                  }}),
            kResultOK);
  EXPECT_EQ(m_proposed, Path(u"a.pwi"));
  EXPECT_EQ(Content(Path(u"a.pwi")), kOther);
}

TEST_F(InkMemoSaving, AnotherMemoIsReplacedByWhatIsSavedBesideOnlyOnceTheUserSaysYes) {
  Put(Path(u"b.pwi"), "b");
  m_prompt.Expect(PromptAnswer::OK);
  m_prompt.Expect(PromptAnswer::No);
  m_prompt.Expect(PromptAnswer::OK);
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(Edit({Write(kOther), [&] { Put(Path(u"a.pwi"), "theirs"); }, OK(), Name(Path(u"b.pwi")),
                  [&] {
                    EXPECT_EQ(m_prompt.Shown()[1].Text, u"b.pwi is there already. Replace it?"_qs);
                    EXPECT_EQ(Content(Path(u"b.pwi")), "b");
                    EXPECT_EQ(Ink().Data(), kOther);
                  },
                  OK(), Name(Path(u"b.pwi"))}),
            kResultOK);
  EXPECT_EQ(Content(Path(u"b.pwi")), kOther);
}

class UnreadMemo : public InkMemoSaving, public testing::WithParamInterface<QByteArray> {
 protected:
  int Run(std::vector<test::Step> steps) {
    g_memo.Buffer = GetParam();
    Put(Path(u"a.pwi"), GetParam());
    return InkMemoSaving::Run(InkMemoKind::Existing, Path(u"a.pwi"), std::move(steps));
  }
};

TEST_P(UnreadMemo, StaysAsItIsAndWhatWasMadeOfItIsSavedBeside) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Run({[&] { Ink().Document().Replace(ReadInk(kOther).Note); }, OK(),
                 [&] {
                   EXPECT_EQ(m_prompt.Shown()[0].Text, kUnread);
                   EnterName(Path(u"b.pwi"));
                 }}),
            kResultOK);
  EXPECT_EQ(m_proposed, Path(u"a_Copy.pwi"));
  EXPECT_EQ(Content(Path(u"a.pwi")), GetParam());
  EXPECT_EQ(ReadInk(Content(Path(u"b.pwi")).value_or("none")).Note.Text.Text, u"another one"_qs);
}

TEST_P(UnreadMemo, ThatWasOnlyLookedAtClosesWithoutAWord) {
  EXPECT_EQ(Run({OK()}), kResultOK);
  EXPECT_EQ(Content(Path(u"a.pwi")), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, UnreadMemo,
                         testing::Values(QByteArray("a picture of a cat"), kNote.first(20),
                                         kNote.chopped(5)));

TEST_F(InkMemoSaving, AMemoThatWasChangedMeanwhileAndIsGivenNoNameStaysOpen) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Edit({Write(kOther), [&] { Put(Path(u"a.pwi"), "theirs"); }, OK(), Cancel(),
                  [&] { EXPECT_EQ(Ink().Data(), kOther); }, Cancel()}),
            kResultCancel);
  EXPECT_EQ(Content(Path(u"a.pwi")), "theirs");
}

}  // namespace
}  // namespace quill
