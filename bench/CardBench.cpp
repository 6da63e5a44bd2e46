// Reading and importing cards, against the least that any reader must do with the same bytes:
// splitting them into lines. "ratio" is how many times longer reading takes than that.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QTemporaryDir>

#include <chrono>

#include "CardGenerator.h"
#include "exchange/CardImport.h"
#include "exchange/CardMapper.h"
#include "store/pim/PimStore.h"

namespace quill::bench {
namespace {

constexpr int kCards = 10'000;

QByteArray MakeCards() {
  CardGenerator generator(1);
  QByteArray bytes;
  for (int i = 0; i < kCards; ++i) bytes += generator.Next();
  return bytes;
}

qsizetype SplitLines(const QByteArray& bytes) { return bytes.split('\n').size(); }

// Cards that gave a contact.
int ReadContacts(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  CardReader reader(buffer, {});
  int contacts = 0;
  Card card;
  while (reader.Next(card)) {
    if (ContactFromCard(card)) ++contacts;
  }
  return contacts;
}

template <typename Work>
double SecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void BM_ReadCards(benchmark::State& state) {
  const QByteArray bytes = MakeCards();
  double splitting = 0;
  double reading = 0;
  for (auto _ : state) {
    splitting += SecondsOf([&] { benchmark::DoNotOptimize(SplitLines(bytes)); });
    const double seconds = SecondsOf([&] {
      if (ReadContacts(bytes) != kCards) state.SkipWithError("cards were lost");
    });
    state.SetIterationTime(seconds);
    reading += seconds;
  }
  state.SetBytesProcessed(state.iterations() * bytes.size());
  state.counters["ratio"] = reading / splitting;
}
BENCHMARK(BM_ReadCards)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_SplitLines(benchmark::State& state) {
  const QByteArray bytes = MakeCards();
  for (auto _ : state) benchmark::DoNotOptimize(SplitLines(bytes));
  state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(BM_SplitLines)->Unit(benchmark::kMillisecond);

void Import(benchmark::State& state, QByteArray bytes, const QString& path, qint64 expected) {
  PimStore store(path);
  if (store.Create() != 0 || store.Logon() != 0 || store.OpenFolder(FolderKind::Contacts) != 0) {
    state.SkipWithError("the store cannot be opened");
    return;
  }
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  const ImportSummary summary = ImportCards(buffer, store, {});
  if (summary.New != expected) state.SkipWithError("cards were lost");
}

// Into a new store on disk, durable when it ends.
void BM_ImportNew(benchmark::State& state) {
  const QByteArray bytes = MakeCards();
  for (auto _ : state) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    state.SetIterationTime(SecondsOf([&] { Import(state, bytes, path, kCards); }));
  }
}
BENCHMARK(BM_ImportNew)->UseManualTime()->Unit(benchmark::kMillisecond);

// The same file once more.
void BM_ImportAgain(benchmark::State& state) {
  const QByteArray bytes = MakeCards();
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("store.db"));
  Import(state, bytes, path, kCards);
  for (auto _ : state) Import(state, bytes, path, 0);
}
BENCHMARK(BM_ImportAgain)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
