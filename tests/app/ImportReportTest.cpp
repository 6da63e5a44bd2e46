#include "app/ImportReport.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

class ImportReport : public testing::Test {
 protected:
  int Report(const ImportSummary& summary) {
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return ReportImport(QStringLiteral("f"), summary, {out, err});
  }
  QString m_out;
  QString m_err;
};

TEST_F(ImportReport, NamesCardLinePersonAndReason) {
  ImportSummary summary;
  summary.Unreadable = 3;
  summary.UnreadableCards = {{2, 14, CardFault::LineTooLong, QStringLiteral("Jane")},
                             {5, 90, CardFault::NothingToFile, {}}};
  summary.LinesNotUnderstood = 7;
  EXPECT_EQ(Report(summary), kExitPartly);
  EXPECT_EQ(m_err.toStdString(),
            "f:14: card 2 (Jane): a line is too long\n"
            "f:90: card 5: it holds no name, company, number or address\n"
            "f: and 1 more unreadable cards\n"
            "f: lines not understood: 7\n");
  EXPECT_EQ(m_out.toStdString(), "f: 0 new, 0 changed, 0 the same, 3 unreadable\n");
}

TEST_F(ImportReport, CountsContacts) {
  ImportSummary summary;
  summary.New = 1;
  summary.Changed = 2;
  summary.Same = 3;
  EXPECT_EQ(Report(summary), kExitDone);
  EXPECT_EQ(m_out.toStdString(), "f: 1 new, 2 changed, 3 the same, 0 unreadable\n");
  EXPECT_EQ(m_err, QString());
}

TEST_F(ImportReport, IsNotDoneWithoutAnyContact) {
  EXPECT_EQ(Report({}), kExitPartly);
  EXPECT_EQ(m_err.toStdString(), "quill: f: no contacts in it\n");
  EXPECT_EQ(m_out, QString());
}

TEST_F(ImportReport, TellsWhyTheImportEnded) {
  ImportSummary summary;
  summary.New = 1;
  summary.Reason = QStringLiteral("disk full");
  for (const ImportEnd end : {ImportEnd::StoreFailed, ImportEnd::DeviceFailed}) {
    summary.End = end;
    m_err.clear();
    EXPECT_EQ(Report(summary), kExitFailed);
    EXPECT_EQ(m_err.toStdString(), "quill: f: disk full\n");
  }
}

TEST_F(ImportReport, SaysThatItWasStoppedAndWhatCameIn) {
  ImportSummary summary;
  summary.End = ImportEnd::Stopped;
  EXPECT_EQ(Report(summary), kExitPartly);
  EXPECT_EQ(m_err.toStdString(), "quill: f: stopped; what came in until then stays\n");
  EXPECT_EQ(m_out.toStdString(), "f: 0 new, 0 changed, 0 the same, 0 unreadable\n");
}

}  // namespace
}  // namespace quill
