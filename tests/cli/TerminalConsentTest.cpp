#include "cli/TerminalConsent.h"

#include <QCoreApplication>
#include <QList>

#include <gmock/gmock.h>

#include <array>

#include "infrared/ObexPeers.h"

#include <unistd.h>

namespace quill::test {
namespace {

using enum ConsentAnswer;

// Somebody at a terminal, and what the program wrote.
class Terminal : public testing::Test {
 protected:
  Terminal() {
    EXPECT_EQ(::pipe(m_ends.data()), 0);
    m_consent.emplace(m_console, m_ends[0]);
  }
  ~Terminal() override {
    HangUp();
    ::close(m_ends[0]);
  }

  void Type(const QByteArray& text) {
    EXPECT_EQ(::write(m_ends[1], text.constData(), static_cast<std::size_t>(text.size())),
              text.size());
  }
  void HangUp() {
    if (m_ends[1] >= 0) ::close(std::exchange(m_ends[1], -1));
  }
  void Ask(const ObexOffer& offer = {}) {
    m_consent->Ask(offer, [this](ConsentAnswer answer) { m_answers += answer; });
  }
  bool Hears(qsizetype answers) {
    return Until([&] { return m_answers.size() == answers; });
  }
  std::string TakeErr() {
    m_err.flush();
    return std::exchange(m_errText, {}).toStdString();
  }

  std::array<int, 2> m_ends{-1, -1};
  QString m_outText;
  QString m_errText;
  QTextStream m_out{&m_outText};
  QTextStream m_err{&m_errText};
  Console m_console{m_out, m_err};
  std::optional<TerminalConsent> m_consent;
  QList<ConsentAnswer> m_answers;
};

struct QuestionCase {
  ObexOffer Offer;
  const char* Question;
};

class TerminalQuestion : public Terminal, public testing::WithParamInterface<QuestionCase> {};

TEST_P(TerminalQuestion, SaysWhoPushesWhat) {
  Ask(GetParam().Offer);
  EXPECT_EQ(TakeErr(), std::string(GetParam().Question) + " Take it? (y)es, (n)o, (a)lways: ");
}

INSTANTIATE_TEST_SUITE_P(
    Obex, TerminalQuestion,
    testing::Values(
        QuestionCase{{u"10.0.0.1"_qs, {}, u"a.vcf"_qs, u"Ann"_qs, 1}, "10.0.0.1 pushes \"Ann\"."},
        QuestionCase{{u"10.0.0.1"_qs, {}, u"a.vcf"_qs, {}, 0}, "10.0.0.1 pushes \"a.vcf\"."},
        QuestionCase{{u"10.0.0.1"_qs, u"Phone"_qs, {}, u"Ann"_qs, 3},
                     "Phone pushes \"Ann\" and 2 more."}));

struct LineCase {
  const char* Typed;
  ConsentAnswer Answer;
};

class TerminalLine : public Terminal, public testing::WithParamInterface<LineCase> {};

TEST_P(TerminalLine, IsAnAnswer) {
  Ask();
  Type(GetParam().Typed);
  ASSERT_TRUE(Hears(1));
  EXPECT_EQ(m_answers.front(), GetParam().Answer);
}

INSTANTIATE_TEST_SUITE_P(Obex, TerminalLine,
                         testing::Values(LineCase{"y\n", Wanted}, LineCase{"Yes\n", Wanted},
                                         LineCase{" y \r\n", Wanted}, LineCase{"a\n", AlwaysWanted},
                                         LineCase{"ALWAYS\n", AlwaysWanted},
                                         LineCase{"n\n", Refused}, LineCase{"\n", Refused},
                                         LineCase{"yo\n", Refused},
                                         LineCase{"always not\n", Refused}));

TEST_F(Terminal, TakesALineThatComesInPieces) {
  Ask();
  Type("ye");
  QCoreApplication::processEvents();
  EXPECT_TRUE(m_answers.isEmpty());
  Type("s\n");
  ASSERT_TRUE(Hears(1));
  EXPECT_EQ(m_answers, QList{Wanted});
}

TEST_F(Terminal, TakesLinesThatWereTypedTogether) {
  Ask();
  Type("y\nn\na\n");
  ASSERT_TRUE(Hears(1));
  Ask();
  Ask();
  EXPECT_EQ(m_answers, (QList{Wanted, Refused, AlwaysWanted}));
}

TEST_F(Terminal, RefusesWhenNobodyIsThereAnyMore) {
  HangUp();
  Ask();
  ASSERT_TRUE(Hears(1));
  Ask();
  ASSERT_TRUE(Hears(2));
  EXPECT_EQ(m_answers, (QList{Refused, Refused}));
}

TEST_F(Terminal, RefusesAnEndlessLineAndForgetsIt) {
  Ask();
  Type(QByteArray(5'000, 'y'));
  ASSERT_TRUE(Hears(1));
  EXPECT_EQ(m_answers, QList{Refused});
}

TEST_F(Terminal, TakesAQuestionBack) {
  Ask();
  TakeErr();
  m_consent->TakeBack();
  EXPECT_EQ(m_answers, QList{Refused});
  EXPECT_EQ(TakeErr(), "\nno longer pushed\n");
  m_consent->TakeBack();
  EXPECT_EQ(TakeErr(), "") << "there is no question";
  Ask();
  Type("y\n");
  ASSERT_TRUE(Hears(2));
  EXPECT_EQ(m_answers.back(), Wanted);
}

}  // namespace
}  // namespace quill::test
