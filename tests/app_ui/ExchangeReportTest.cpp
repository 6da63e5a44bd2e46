#include "app/ui/ExchangeReport.h"

#include "ExchangeFixture.h"

namespace quill {
namespace {

class ExchangeReportTest : public test::ExchangeFixture {
 protected:
  PromptMessage Show(int exitCode, const QStringList& files = {}) {
    m_prompt.Expect(PromptAnswer::OK);
    m_report.Show(exitCode, files);
    return m_prompt.Shown().back();
  }

  ExchangeReport m_report;
};

TEST_F(ExchangeReportTest, ShowsResultsBeforeMessages) {
  m_report.Target().Err << "quill: b: bad\n";
  m_report.Target().Out << "a: 2 new\n";
  const PromptMessage message = Show(kExitPartly);
  EXPECT_EQ(message.Text, QStringLiteral("A: 2 new.\nB: bad."));
  EXPECT_EQ(message.Icon, PromptIcon::Warning);
}

TEST_F(ExchangeReportTest, IsInformationWhenAllWentWell) {
  EXPECT_EQ(Show(kExitDone).Icon, PromptIcon::Information);
}

TEST_F(ExchangeReportTest, CountsWhatABoxHasNoRoomFor) {
  for (int i = 1; i <= 6; ++i) m_report.Target().Err << "line " << i << '\n';
  EXPECT_EQ(Show(kExitFailed).Text,
            QStringLiteral("Line 1.\nLine 2.\nLine 3.\nLine 4.\n... and 2 more."));
}

TEST_F(ExchangeReportTest, NamesFilesWithoutTheirFolders) {
  m_report.Target().Out << "/a/b/c.vcf: 2 new\n";
  m_report.Target().Err << "/a/d/e.vcf:3: bad\n";
  EXPECT_EQ(Show(kExitDone, {QStringLiteral("/a/b/c.vcf"), QStringLiteral("/a/d")}).Text,
            QStringLiteral("c.vcf: 2 new.\nd/e.vcf:3: bad."));
}

TEST_F(ExchangeReportTest, AFullStopThatIsThereIsEnough) {
  m_report.Target().Err << "quill: nobody came.\n";
  EXPECT_EQ(Show(kExitFailed).Text, QStringLiteral("Nobody came."));
}

}  // namespace
}  // namespace quill
