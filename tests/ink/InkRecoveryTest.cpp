#include "ink/InkRecovery.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkSamples.h"
#include "platform/Services.h"
#include "support/FixedClock.h"
#include "support/RecoveryMemory.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

constexpr qint64 kBegin = 1'700'000'000'000;
const InkPen kBlack{.Color = 0xFF000000};
const InkPen kYellow{.Color = 0xFFFFFF00, .Tip = InkTip::Highlighter};

class InkRecoveryTest : public testing::Test {
 protected:
  InkRecoveryTest() {
    g_services = {};
    g_services.Clock = &m_clock;
    g_services.Timers = &m_timers;
    g_services.Recovery = &m_files;
  }
  ~InkRecoveryTest() override { g_services = {}; }

  void Draw(int place, const InkPen& pen = kBlack) {
    m_document.AddStroke({.Points = {{.X = place, .Y = 1}, {.X = place + 9, .Y = 5}}}, pen);
  }
  void Pass(int milliseconds) {
    m_clock.Set(m_clock.Now().addMSecs(milliseconds));
    m_timers.Advance(milliseconds);
  }
  bool HasFile() const { return m_files.Files.contains(kName); }
  // What the next run would find.
  InkNote Found() const { return FindUnsavedInk(kName).value_or(UnsavedInk{}).Note; }
  std::size_t FoundStrokes() const { return Found().Strokes.size(); }

  const QString kName = u"ink-a"_qs;
  FixedClock m_clock{QDateTime::fromMSecsSinceEpoch(kBegin)};
  SteppedTimers m_timers;
  RecoveryMemory m_files;
  InkDocument m_document;
  std::optional<InkRecovery> m_recovery{std::in_place, m_document, kName};
};

TEST_F(InkRecoveryTest, LookingAtANoteLeavesNoFile) {
  m_document.SetData(SampleNoteBytes());
  Pass(10'000);
  EXPECT_FALSE(HasFile());
  EXPECT_FALSE(FindUnsavedInk(kName));
}

TEST_F(InkRecoveryTest, EachStrokeIsThereAtPenUp) {
  for (std::size_t count = 1; count <= 3; ++count) {
    Draw(static_cast<int>(100 * count));
    EXPECT_EQ(FoundStrokes(), count);
  }
  EXPECT_TRUE(SameInk(Found(), m_document.Note()));
  EXPECT_EQ(m_files.Writes, 1);
}

TEST_F(InkRecoveryTest, AStrokeIsAddedBehindWhatThePageHeldBefore) {
  m_document.SetData(SampleNoteBytes());
  Draw(100);
  EXPECT_TRUE(SameInk(Found(), m_document.Note()));
  EXPECT_EQ(FoundStrokes(), 2U);
}

TEST_F(InkRecoveryTest, AStrokeWithAnotherPenIsFoundWithThatPen) {
  Draw(100);
  Draw(200, kYellow);
  const InkNote found = Found();
  ASSERT_EQ(found.Strokes.size(), 2U);
  EXPECT_EQ(found.Pens, m_document.Note().Pens);
  EXPECT_EQ(found.Strokes[0]->Points[0].X, 200);  // highlighters lie below
}

TEST_F(InkRecoveryTest, WhatIsErasedIsGoneAfterTwoSeconds) {
  Draw(100);
  Draw(200);
  m_document.Erase({m_document.Note().Strokes[0]}, 1);
  Pass(1999);
  EXPECT_EQ(FoundStrokes(), 2U);
  Pass(1);
  ASSERT_EQ(FoundStrokes(), 1U);
  EXPECT_EQ(Found().Strokes[0]->Points[0].X, 200);
}

TEST_F(InkRecoveryTest, TextIsThereAfterTwoSecondsHoweverSteadilyItIsTyped) {
  for (int i = 0; i < 5; ++i) {
    m_document.Type(i, i, u"x"_qs);
    Pass(500);
  }
  EXPECT_EQ(Found().Text.Text, u"xxxx"_qs);
  Pass(2000);
  EXPECT_EQ(Found().Text.Text, u"xxxxx"_qs);
}

TEST_F(InkRecoveryTest, NothingIsWrittenAgainWhenNothingChanged) {
  m_document.Type(0, 0, u"x"_qs);
  Pass(2000);
  Pass(10'000);
  EXPECT_EQ(m_files.Writes, 1);
}

TEST_F(InkRecoveryTest, AStrokeThatComesWithinTheTwoSecondsIsThereAtOnce) {
  Draw(100);
  m_document.Erase({m_document.Note().Strokes[0]}, 1);
  Draw(200);
  ASSERT_EQ(FoundStrokes(), 1U);
  EXPECT_EQ(Found().Strokes[0]->Points[0].X, 200);
  Pass(2000);
  EXPECT_EQ(m_files.Writes, 2);
}

TEST_F(InkRecoveryTest, AStrokeThatComesBackIsThereOnce) {
  Draw(100);
  m_document.Erase({m_document.Note().Strokes[0]}, 1);
  m_document.Steps().undo();
  EXPECT_EQ(FoundStrokes(), 1U);
}

TEST_F(InkRecoveryTest, APageOfWhichAllWasErasedIsFoundEmpty) {
  m_document.SetData(SampleNoteBytes());
  m_document.ClearAll();
  Pass(2000);
  const auto found = FindUnsavedInk(kName);
  ASSERT_TRUE(found);
  EXPECT_TRUE(found->Note.IsEmpty());
}

TEST_F(InkRecoveryTest, AForeignNoteThatWasClearedIsFoundEmpty) {
  m_document.SetData("something else");
  m_document.ClearAll();
  Pass(2000);
  const auto found = FindUnsavedInk(kName);
  ASSERT_TRUE(found);
  EXPECT_TRUE(found->Note.IsEmpty());
}

TEST_F(InkRecoveryTest, WhenAllIsUndoneThereIsNothingToRecover) {
  m_document.SetData(SampleNoteBytes());
  Draw(100);
  m_document.Steps().undo();
  Pass(2000);
  EXPECT_FALSE(HasFile());
  Draw(300);
  EXPECT_EQ(FoundStrokes(), 2U);
}

TEST_F(InkRecoveryTest, DiscardedInkIsNotFoundAndNotWrittenAgain) {
  Draw(100);
  m_document.Type(0, 0, u"x"_qs);
  m_recovery->Discard();
  EXPECT_FALSE(HasFile());
  Pass(2000);
  EXPECT_FALSE(HasFile());
  Draw(200);
  EXPECT_EQ(FoundStrokes(), 2U);
}

TEST_F(InkRecoveryTest, TheFileOutlivesTheNoteThatWasNotSaved) {
  Draw(100);
  m_recovery.reset();
  EXPECT_EQ(FoundStrokes(), 1U);
}

TEST_F(InkRecoveryTest, WhatWaitsIsWrittenWhenTheNoteIsClosed) {
  m_document.Type(0, 0, u"x"_qs);
  m_recovery.reset();
  EXPECT_EQ(Found().Text.Text, u"x"_qs);
  Pass(2000);
  EXPECT_EQ(m_files.Writes, 1);
}

TEST_F(InkRecoveryTest, ANoteThatIsClosedWithAllUndoneLeavesNoFile) {
  Draw(100);
  m_document.Steps().undo();
  m_recovery.reset();
  EXPECT_FALSE(HasFile());
}

TEST_F(InkRecoveryTest, TheTimeIsThatOfTheLastChange) {
  Draw(100);
  EXPECT_EQ(FindUnsavedInk(kName)->Time, kBegin);
  Pass(60'000);
  Draw(200);
  EXPECT_EQ(FindUnsavedInk(kName)->Time, kBegin + 60'000);
}

TEST_F(InkRecoveryTest, OfWhomItIsIsFoundWithIt) {
  m_recovery.emplace(m_document, kName, u"김서연"_qs);
  Draw(100);
  Draw(200);
  EXPECT_EQ(FindUnsavedInk(kName)->Owner, u"김서연"_qs);
  EXPECT_EQ(FoundStrokes(), 2U);
}

TEST_F(InkRecoveryTest, WithoutAnOwnerNoneIsFound) {
  Draw(100);
  EXPECT_EQ(FindUnsavedInk(kName)->Owner, QString());
}

TEST_F(InkRecoveryTest, WhatCouldNotBeWrittenIsWrittenWithTheNextStroke) {
  Draw(100);
  m_files.IsFull = true;
  Draw(200);
  m_files.IsFull = false;
  Draw(300);
  EXPECT_EQ(FoundStrokes(), 3U);
}

TEST_F(InkRecoveryTest, CutAnywhereTheFileGivesAllWholeStrokesBefore) {
  std::vector<qsizetype> ends;
  for (int i = 0; i < 5; ++i) {
    Draw(100 * i);
    ends.push_back(m_files.Files[kName].size());
  }
  const QByteArray whole = m_files.Files[kName];
  const auto timeSize = static_cast<qsizetype>(20);  // what follows each stroke
  for (qsizetype size = ends[0]; size <= whole.size(); ++size) {
    m_files.Files[kName] = whole.left(size);
    const auto strokes = std::ranges::count_if(
        ends, [size, timeSize](qsizetype end) { return end - timeSize <= size; });
    ASSERT_EQ(FoundStrokes(), static_cast<std::size_t>(strokes)) << size;
  }
}

TEST_F(InkRecoveryTest, AFileThatIsNoNoteIsSetAside) {
  QByteArray newer = WriteOpenInk(SampleNote());
  AppendInkChunk(newer, "NEED", {});
  for (const QByteArray& bytes : {QByteArray("?"), QByteArray(), WriteOpenInk({}), newer}) {
    m_files.Files[kName] = bytes;
    EXPECT_FALSE(FindUnsavedInk(kName)) << bytes.toHex().constData();
    EXPECT_FALSE(HasFile());
  }
  EXPECT_EQ(m_files.Aside.size(), 4U);
}

TEST_F(InkRecoveryTest, WithoutRecoveryFilesNothingIsKept) {
  g_services.Recovery = nullptr;
  Draw(100);
  Draw(200);
  m_recovery->Discard();
  EXPECT_FALSE(FindUnsavedInk(kName));
}

TEST(InkRecoveryNames, AreThoseOfThePathInAnyCaseOfTheContactAndOfANewMemo) {
  const QString name = InkRecoveryName(u"\\My Documents\\Fennick\\Kim.pwi"_qs);
  EXPECT_EQ(name, u"ink-ffeda72bd2c968fd"_qs);
  EXPECT_EQ(InkRecoveryName(u"\\my documents\\fennick\\KIM.PWI"_qs), name);
  EXPECT_NE(InkRecoveryName(u"\\My Documents\\Fennick\\Lee.pwi"_qs), name);
  EXPECT_EQ(ContactInkRecoveryName(17), u"ink-contact-17"_qs);
  EXPECT_EQ(kNewInkRecoveryName, u"ink-new");
}

}  // namespace
}  // namespace quill::test
