#include "platform/ui/MessageBox.h"

#include <QLabel>

#include "platform/ui/ScreenPrompt.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::Steps;

constexpr int kEscape = -1;
constexpr int kReturn = -2;
constexpr int kProgramCloses = -3;

struct AnswerCase {
  const char* Name;
  PromptButtons Buttons;
  int How;  // the id of the button tapped, or one of the three above
  PromptAnswer Answer;
};

class MessageBoxTest : public test::ScreenFixture {
 protected:
  CMessageBox& Box() const { return *qobject_cast<CMessageBox*>(m_screen->Topmost()); }

  void TapControl(int id) {
    QWidget* const button = Box().Control(id);
    ASSERT_NE(button, nullptr) << id;
    m_input.Tap(button->mapTo(m_screen, button->rect().center()));
  }

  void Answer(int how) {
    if (how == kEscape) return m_input.Key(Qt::Key_Escape);
    if (how == kReturn) return m_input.Key(Qt::Key_Return);
    if (how == kProgramCloses) return m_screen->CloseAll();
    TapControl(how);
  }
};

class MessageAnswerTest : public MessageBoxTest, public testing::WithParamInterface<AnswerCase> {};

TEST_P(MessageAnswerTest, IsWhatTheBoxWasEndedWith) {
  ScreenPrompt prompt(*m_screen);
  const Steps steps(*m_screen, {[this] { Answer(GetParam().How); }});
  EXPECT_EQ(prompt.Show({.Text = QStringLiteral("Text"), .Buttons = GetParam().Buttons}),
            GetParam().Answer);
}

std::string AnswerName(const testing::TestParamInfo<AnswerCase>& info) { return info.param.Name; }

INSTANTIATE_TEST_SUITE_P(
    OK, MessageAnswerTest,
    testing::Values(AnswerCase{"Button", PromptButtons::OK, kResultOK, PromptAnswer::OK},
                    AnswerCase{"Return", PromptButtons::OK, kReturn, PromptAnswer::OK},
                    AnswerCase{"Escape", PromptButtons::OK, kEscape, PromptAnswer::OK},
                    AnswerCase{"Closing", PromptButtons::OK, kProgramCloses, PromptAnswer::Cancel}),
    AnswerName);
INSTANTIATE_TEST_SUITE_P(
    OKCancel, MessageAnswerTest,
    testing::Values(
        AnswerCase{"OKButton", PromptButtons::OKCancel, kResultOK, PromptAnswer::OK},
        AnswerCase{"CancelButton", PromptButtons::OKCancel, kResultCancel, PromptAnswer::Cancel},
        AnswerCase{"Return", PromptButtons::OKCancel, kReturn, PromptAnswer::OK},
        AnswerCase{"Escape", PromptButtons::OKCancel, kEscape, PromptAnswer::Cancel},
        AnswerCase{"Closing", PromptButtons::OKCancel, kProgramCloses, PromptAnswer::Cancel}),
    AnswerName);
INSTANTIATE_TEST_SUITE_P(
    YesNo, MessageAnswerTest,
    testing::Values(AnswerCase{"YesButton", PromptButtons::YesNo, kResultYes, PromptAnswer::Yes},
                    AnswerCase{"NoButton", PromptButtons::YesNo, kResultNo, PromptAnswer::No},
                    AnswerCase{"Return", PromptButtons::YesNo, kReturn, PromptAnswer::Yes},
                    AnswerCase{"Escape", PromptButtons::YesNo, kEscape, PromptAnswer::No},
                    AnswerCase{"Closing", PromptButtons::YesNo, kProgramCloses, PromptAnswer::No}),
    AnswerName);

TEST_F(MessageBoxTest, WhileTheProgramClosesTheAnswerComesAtOnce) {
  m_screen->CloseAll();
  ScreenPrompt prompt(*m_screen);
  EXPECT_EQ(prompt.Show({.Text = QStringLiteral("Text"), .Buttons = PromptButtons::YesNo}),
            PromptAnswer::No);
  EXPECT_EQ(prompt.Show({.Text = QStringLiteral("Text")}), PromptAnswer::Cancel);
}

TEST_F(MessageBoxTest, CarriesTheApplicationsTitleUnlessSaidOtherwise) {
  EXPECT_EQ(CMessageBox(*m_screen, {.Text = QStringLiteral("Text")}).Caption(),
            QStringLiteral("Quill (Quillbook)"));
  EXPECT_EQ(CMessageBox(*m_screen, {.Text = {}, .Caption = QStringLiteral("Memo")}).Caption(),
            QStringLiteral("Memo"));
}

struct IconCase {
  PromptIcon Icon;
  const char16_t* Name;
};

class MessageIconTest : public MessageBoxTest, public testing::WithParamInterface<IconCase> {};

TEST_P(MessageIconTest, HasAName) {
  const CMessageBox box(*m_screen, {.Text = QStringLiteral("Text"), .Icon = GetParam().Icon});
  const QWidget* const icon = box.Control(MessageBoxIds::kIcon);
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(icon->accessibleName(), QString::fromUtf16(GetParam().Name));
  EXPECT_EQ(icon->isVisibleTo(&box), GetParam().Icon != PromptIcon::None);
}

INSTANTIATE_TEST_SUITE_P(Icons, MessageIconTest,
                         testing::Values(IconCase{PromptIcon::None, u"None"},
                                         IconCase{PromptIcon::Information, u"Information"},
                                         IconCase{PromptIcon::Warning, u"Warning"},
                                         IconCase{PromptIcon::Question, u"Question"},
                                         IconCase{PromptIcon::Error, u"Error"}));

struct TextCase {
  const char* Name;
  QString Text;
  bool FitsWhole;  // a text beyond the largest box is cut
};

class MessageTextTest : public MessageBoxTest, public testing::WithParamInterface<TextCase> {};

TEST_P(MessageTextTest, StaysInsideTheFrameAboveTheButtons) {
  const CMessageBox box(*m_screen, {.Text = GetParam().Text, .Icon = PromptIcon::Warning});
  EXPECT_TRUE(m_screen->rect().contains(box.geometry()));
  const auto* text = qobject_cast<QLabel*>(box.Control(MessageBoxIds::kText));
  const QWidget* button = box.Control(kResultOK);
  EXPECT_EQ(text->text(), GetParam().Text);
  EXPECT_TRUE(box.rect().contains(text->geometry()));
  EXPECT_TRUE(box.rect().contains(button->geometry()));
  EXPECT_LT(text->geometry().bottom(), button->geometry().top());
  EXPECT_EQ(text->heightForWidth(text->width()) <= text->height(), GetParam().FitsWhole);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MessageTextTest,
    testing::Values(
        TextCase{"Empty", {}, true}, TextCase{"Short", QStringLiteral("Done."), true},
        TextCase{"SeveralLines", QStringLiteral("one\ntwo\nthree\nfour\nfive\nsix"), true},
        TextCase{"Long", QStringLiteral("Some words of a sentence. ").repeated(10), true},
        TextCase{"Korean", QStringLiteral("선택한 연락처를 모두 삭제하시겠습니까? ").repeated(6),
                 true},
        TextCase{"OneLongKoreanWord", QStringLiteral("연락처삭제").repeated(12), true},
        TextCase{"TooLong", QStringLiteral("Some words of a sentence. ").repeated(60), false}),
    [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST_F(MessageBoxTest, TheTextIsShownAsItIsNotAsMarkup) {
  const CMessageBox box(*m_screen, {.Text = QStringLiteral("<b>bold</b>")});
  EXPECT_EQ(qobject_cast<QLabel*>(box.Control(MessageBoxIds::kText))->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace quill
