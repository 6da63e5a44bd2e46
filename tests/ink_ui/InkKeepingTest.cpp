#include "ink/ui/InkKeeping.h"

#include <QAbstractButton>
#include <QLabel>

#include "ink/ui/InkX.h"
#include "platform/Services.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "support/DeviceHome.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

const QString kName = QStringLiteral("ink-sample");
const QString kSecondName = QStringLiteral("ink-sample-2");

InkStroke DotAt(int x) {
  InkStroke stroke;
  stroke.Points = {{.X = x * kInkUnitsPerPixel, .Y = 10 * kInkUnitsPerPixel}};
  return stroke;
}

// A control with the keeping of its note, over a folder of recovery files. Another run has a
// control and a keeping of its own.
class InkKeepingTest : public test::ScreenFixture {
 protected:
  InkKeepingTest() { g_services.Clock = &m_clock; }
  ~InkKeepingTest() override {
    m_keeping.reset();  // what waits is written with its time
    g_services.Clock = nullptr;
  }

  // What a run leaves that draws so many dots and is killed.
  void Leave(int dots, const QString& owner = {}) {
    InkX ink(&m_frame);
    InkKeeping keeping(ink, {.Name = kName, .Owner = owner}, m_frame);
    for (int i = 0; i < dots; ++i) ink.Document().AddStroke(DotAt(10 + i), {});
  }
  void Begin(const QString& owner = {}, const QString& file = {}) {
    const InkKeepingPlace place{.Name = kName, .Owner = owner, .File = file};
    m_keeping = std::make_unique<InkKeeping>(m_ink, place, m_frame);
  }
  void Draw() { m_ink.Document().AddStroke(DotAt(100), {}); }
  void Click(int id) {
    auto* const button = qobject_cast<QAbstractButton*>(m_keeping->Controls().at(id));
    ASSERT_NE(button, nullptr);
    button->click();
  }
  bool Offers() const { return !m_keeping->Controls().empty(); }
  QString OfferText() { return m_frame.findChild<COfferBar*>()->findChild<QLabel*>()->text(); }
  std::size_t Strokes() const { return m_ink.Document().Note().Strokes.size(); }
  std::optional<std::size_t> Kept(const QString& name) const {
    const auto ink = FindUnsavedInk(name);
    return ink ? std::optional(ink->Note.Strokes.size()) : std::nullopt;
  }

  test::DeviceHome m_home;
  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  test::SampleFrame m_frame{*m_screen};
  InkX m_ink{&m_frame};
  std::unique_ptr<InkKeeping> m_keeping;
};

TEST_F(InkKeepingTest, WithoutAnEarlierRunNothingIsOffered) {
  Begin();
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Kept(kName), std::nullopt);
}

TEST_F(InkKeepingTest, WhatARunLeftIsOfferedOverTheLowerEndOfTheWindow) {
  Leave(2);
  Begin();
  ASSERT_TRUE(Offers());
  EXPECT_EQ(OfferText(), QStringLiteral("Unsaved ink from 09:30"));
  EXPECT_EQ(Strokes(), 0U);
  const QRect bar = m_frame.findChild<COfferBar*>()->geometry();
  EXPECT_EQ(bar.bottomRight(), m_frame.rect().bottomRight());
}

TEST_F(InkKeepingTest, OnAnotherDayItsDayIsSaid) {
  Leave(1);
  m_clock.Set(m_clock.Now().addDays(1));
  Begin();
  EXPECT_EQ(OfferText(), QStringLiteral("Unsaved ink from 09/15"));
}

TEST_F(InkKeepingTest, TheOfferSaysOfWhomItIs) {
  Leave(1, QStringLiteral("Kim"));
  Begin(QStringLiteral("Lee"));
  EXPECT_EQ(OfferText(), QStringLiteral("Not saved: Kim, 09:30"));
}

TEST_F(InkKeepingTest, WhatIsTakenBackIsOfWhomTheNoteIsNow) {
  Leave(1, QStringLiteral("Kim"));
  Begin(QStringLiteral("Lee"));
  Click(InkIds::kRestore);
  Draw();
  m_keeping.reset();
  Begin();
  EXPECT_EQ(OfferText(), QStringLiteral("Not saved: Lee, 09:30"));
}

TEST_F(InkKeepingTest, TheBarGivesWayToThePanel) {
  Leave(1);
  m_panel.Raise();
  Begin();
  EXPECT_FALSE(Offers());
  m_panel.Lower();
  m_keeping->PlaceBar();
  EXPECT_TRUE(Offers());
}

TEST_F(InkKeepingTest, RestoringPutsItOnThePageAndCanBeUndone) {
  Leave(2);
  Begin();
  Click(InkIds::kRestore);
  EXPECT_EQ(Strokes(), 2U);
  EXPECT_FALSE(Offers());
  m_ink.Undo();
  EXPECT_EQ(Strokes(), 0U);
}

TEST_F(InkKeepingTest, WhatIsTakenBackStaysInItsFileUntilTheNoteIsSaved) {
  Leave(2);
  Begin();
  Click(InkIds::kRestore);
  EXPECT_EQ(Kept(kName), 2U);
  m_keeping->Discard();
  EXPECT_EQ(Kept(kName), std::nullopt);
}

TEST_F(InkKeepingTest, WhatIsWrittenAfterwardsGoesToTheFileThatItCameFrom) {
  Leave(2);
  Begin();
  Click(InkIds::kRestore);
  Draw();
  EXPECT_EQ(Kept(kName), 3U);
  EXPECT_EQ(Kept(kSecondName), std::nullopt);
}

TEST_F(InkKeepingTest, DiscardingThrowsItAway) {
  Leave(2);
  Begin();
  Click(InkIds::kDiscard);
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Kept(kName), std::nullopt);
  EXPECT_EQ(Strokes(), 0U);
}

TEST_F(InkKeepingTest, NewInkIsKeptBesideWhatIsOffered) {
  Leave(2);
  Begin();
  Draw();
  EXPECT_EQ(Kept(kName), 2U);
  EXPECT_EQ(Kept(kSecondName), 1U);
}

TEST_F(InkKeepingTest, TheFileThatHoldsTheNoteAlreadyIsNotOfferedAndGoesOn) {
  Leave(1);
  Leave(2);
  Begin({}, kSecondName);
  Draw();
  EXPECT_EQ(m_keeping->File(), kSecondName);
  EXPECT_EQ(Kept(kSecondName), 1U);
  Click(InkIds::kRestore);
  EXPECT_FALSE(Offers());
  EXPECT_EQ(m_keeping->File(), kName);
}

TEST_F(InkKeepingTest, WhatSeveralRunsLeftIsOfferedOneAfterTheOther) {
  Leave(2);
  Leave(3);
  Begin();
  Click(InkIds::kRestore);
  EXPECT_EQ(Strokes(), 2U);
  EXPECT_TRUE(Offers());
  Click(InkIds::kRestore);
  EXPECT_EQ(Strokes(), 3U);
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Kept(kName), std::nullopt);
  EXPECT_EQ(Kept(kSecondName), 3U);
}

TEST_F(InkKeepingTest, OfMoreRunsThanThereAreFilesTheLastIsOverwritten) {
  for (const int dots : {1, 2, 3, 4, 5}) Leave(dots);
  EXPECT_EQ(Kept(kName), 1U);
  EXPECT_EQ(Kept(QStringLiteral("ink-sample-3")), 3U);
  EXPECT_EQ(Kept(QStringLiteral("ink-sample-4")), 5U);
}

TEST_F(InkKeepingTest, ASavedNoteLeavesOnlyWhatIsStillOffered) {
  Leave(2);
  Begin();
  Draw();
  m_keeping->Discard();
  EXPECT_EQ(Kept(kName), 2U);
  EXPECT_EQ(Kept(kSecondName), std::nullopt);
}

TEST_F(InkKeepingTest, ADeletedNoteLeavesWhatIsOfOthers) {
  Leave(2);
  m_keeping = std::make_unique<InkKeeping>(m_ink, InkKeepingPlace{.Name = kName, .IsShared = true},
                                           m_frame);
  Draw();
  m_keeping->DiscardDeleted();
  EXPECT_TRUE(Offers());
  EXPECT_EQ(Kept(kName), 2U);
  EXPECT_EQ(Kept(kSecondName), std::nullopt);
}

TEST_F(InkKeepingTest, ADeletedNoteLeavesNothing) {
  Leave(2);
  Begin();
  Draw();
  m_keeping->DiscardDeleted();
  EXPECT_FALSE(Offers());
  EXPECT_EQ(Kept(kName), std::nullopt);
  EXPECT_EQ(Kept(kSecondName), std::nullopt);
}

}  // namespace
}  // namespace quill
