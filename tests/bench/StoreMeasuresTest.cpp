#include "bench/StoreMeasures.h"

#include <QDir>

#include <algorithm>

#include "bench/StoreGenerator.h"
#include "store_pim/TemporaryStore.h"

namespace quill::bench {
namespace {

constexpr RunLimits kTwoRuns{.Least = 2, .Most = 2};

class StoreMeasures : public test::TemporaryStore {
 protected:
  // The store is closed while it is measured.
  std::optional<std::vector<Measure>> MeasureFilled(int contacts) {
    EXPECT_EQ(StoreGenerator(m_store, 1).Fill(contacts), QString());
    m_before = test::Names(Contacts(), Contacts().Items());
    m_store.Close();
    const auto measures = MeasureStore(Path(), kTwoRuns, m_problem);
    EXPECT_EQ(test::OpenAll(m_store), 0);
    return measures;
  }

  QStringList m_before;
  QString m_problem;
};

TEST_F(StoreMeasures, GiveAValueToEveryRow) {
  const auto measures = MeasureFilled(1000);
  ASSERT_TRUE(measures) << m_problem.toStdString();
  for (const Measure& measure : *measures) {
    EXPECT_TRUE(measure.Value.at(0).isDigit()) << measure.What.toStdString();
    EXPECT_FALSE(measure.Value.contains(QStringLiteral("nan"))) << measure.What.toStdString();
    EXPECT_NE(measure.Value, QStringLiteral("0.00 µs")) << measure.What.toStdString();
  }
  EXPECT_EQ(measures->front().What, QStringLiteral("open, count, first page"));
  EXPECT_EQ(std::count_if(measures->begin(), measures->end(),
                          [](const auto& each) { return each.What.startsWith(u"build: "); }),
            18);
}

TEST_F(StoreMeasures, LeaveTheContactsAndNoOtherFile) {
  ASSERT_TRUE(MeasureFilled(1000)) << m_problem.toStdString();
  EXPECT_EQ(test::Names(Contacts(), Contacts().Items()), m_before);
  m_store.Close();
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("store.db")));
}

TEST_F(StoreMeasures, SayWhatAStoreLacks) {
  EXPECT_FALSE(MeasureFilled(3)) << "no page of 14";
  EXPECT_TRUE(m_problem.startsWith(QStringLiteral("P: 14 rows by Oid: failed")))
      << m_problem.toStdString();
}

TEST_F(StoreMeasures, SayWhyAStoreDoesNotOpen) {
  QString problem;
  EXPECT_FALSE(MeasureStore(m_folder.path(), kTwoRuns, problem));
  EXPECT_NE(problem, QString());
}

}  // namespace
}  // namespace quill::bench
