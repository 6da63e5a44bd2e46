// The popup of a contact with many linked appointments among very many, against that of a contact
// with a few among a few: from the name to the menu. Every linked one has handwriting. Each popup
// is the first one of a new connection to the store on disk.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <random>

#include "MeasureTable.h"
#include "appointments/ContactLink.h"
#include "list/ContactPopup.h"
#include "memo/MemoFolder.h"
#include "platform/CommandTarget.h"
#include "platform/DesktopDeviceFiles.h"
#include "platform/Services.h"
#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"

namespace quill::bench {
namespace {

constexpr int kInkSize = 20 * 1024;  // bytes
const QString kName = QStringLiteral("Kim, Su");

struct CalendarSize {
  int All;
  int Linked;
};
constexpr CalendarSize kFew{.All = 1000, .Linked = 10};
constexpr CalendarSize kMany{.All = 100'000, .Linked = 1000};

QByteArray SomeInk(std::mt19937& random) {
  QByteArray ink(kInkSize, Qt::Uninitialized);
  for (char& byte : ink) byte = static_cast<char>(random());
  return ink;
}

AppointmentItem Appointment(const QString& fileAs, int number) {
  AppointmentItem item;
  item.Subject = ContactLinkPrefix(fileAs) + QStringLiteral(" meeting %1").arg(number);
  const QDate day = QDate(2004, 1, 1).addDays(number % 3000);
  item.Start = MakeCalendarDate(day, QTime(10, 0));
  item.End = MakeCalendarDate(day, QTime(11, 0));
  item.Duration = 60;
  return item;
}

// A home with that many appointments, the linked ones evenly among them.
class Home {
 public:
  explicit Home(const CalendarSize& size) : m_size(size), m_isFilled(Fill()) {}

  // How long the popup takes in microseconds; negative when it is not the right one.
  double MeasurePopup() {
    PimStore store(StoreFile());
    g_services.Files = &m_files;
    FixMemoFolder(g_memo);
    if (!m_isFilled || OpenSession(store) != StartupCode::Opened) return -1;
    std::vector<MenuItem> items;
    const double time = MicrosecondsOf([&items] {
      g_linkedItems = FindLinkedItems(kName);
      items = BuildContactPopup(g_linkedItems, {});
    });
    CloseSession();
    g_services.Files = nullptr;
    return items[0].Text == QStringLiteral("Appointment: %1").arg(m_size.Linked) ? time : -1;
  }

 private:
  QString StoreFile() const { return m_folder.filePath(QStringLiteral("store.db")); }

  bool Fill() const {
    PimStore store(StoreFile());
    if (OpenSession(store) != StartupCode::Opened) return false;
    const auto transaction = store.Begin();
    std::mt19937 random(1);
    const int step = m_size.All / m_size.Linked;
    for (int i = 0; i < m_size.All; ++i) {
      const bool isLinked = i % step == 0;
      const QString other = QStringLiteral("Contact %1").arg(random() % 50'000);
      AppointmentItem item = Appointment(isLinked ? kName : other, i);
      if (isLinked) item.BodyInk = SomeInk(random);
      if (store.Calendar()->Save(item) == 0) return false;
    }
    const bool done = transaction->Commit();
    CloseSession();
    return done;
  }

  CalendarSize m_size;
  QTemporaryDir m_folder;
  DesktopDeviceFiles m_files{{.Device = m_folder.path(),
                              .MyDocuments = m_folder.filePath(QStringLiteral("My Documents"))}};
  bool m_isFilled;
};

void BM_Popup(benchmark::State& state) {
  Home few(kFew);
  Home many(kMany);
  std::vector<double> fewTimes;
  std::vector<double> manyTimes;
  while (state.KeepRunning()) {
    fewTimes.push_back(few.MeasurePopup());
    manyTimes.push_back(many.MeasurePopup());
    if (fewTimes.back() < 0 || manyTimes.back() < 0) state.SkipWithError("not the right popup");
    state.SetIterationTime(manyTimes.back() / 1e6);
  }
  state.counters["few_us"] = Median(fewTimes);
  state.counters["many_us"] = Median(manyTimes);
  state.counters["many/few"] = Median(manyTimes) / Median(fewTimes);
}
BENCHMARK(BM_Popup)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
