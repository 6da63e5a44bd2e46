#include "SizedStores.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextStream>

#include <unistd.h>

#include "RunApart.h"
#include "StoreGenerator.h"
#include "app/ProgressLine.h"
#include "app/StoreOpening.h"
#include "store/pim/PimStore.h"

namespace quill::bench {

namespace {

constexpr int kLeastSize = 1000;
constexpr unsigned kSeed = 1;

struct TableOrder {
  QString Folder;  // empty: a temporary one
  std::vector<int> Sizes;
};

std::optional<TableOrder> ParseOrder(QStringList words) {
  TableOrder order;
  if (words.value(0) == QLatin1String("--in")) {
    order.Folder = words.value(1);
    if (order.Folder.isEmpty()) return std::nullopt;
    words = words.mid(2);
  }
  for (const QString& word : std::as_const(words)) {
    const int size = word.toInt();
    if (size < kLeastSize) return std::nullopt;
    order.Sizes.push_back(size);
  }
  if (order.Sizes.empty()) order.Sizes = {1000, 10'000, 100'000, 1'000'000};
  return order;
}

QString SizeText(int size) { return QLocale(QLocale::English).toString(size); }

// What every step of a table needs to know.
struct TableRun {
  QString Program;
  QString Folder;  // of the homes
  MeasureHome Measure;

  void Complain(const QString& problem) const {
    QTextStream(stderr) << Program << ": " << problem << Qt::endl;
  }
};

QString FillStore(PimStore& store, int size) {
  QTextStream err(stderr);
  const Console console{err, err, isatty(STDERR_FILENO) == 1};
  ProgressLine line(console);
  StoreGenerator generator(store, kSeed, [&line, size](int made) {
    line.Show(QStringLiteral("%1 of %2 contacts").arg(made).arg(size));
  });
  return generator.Fill(size);
}

// Makes the store unless it is there. Returns why it cannot be measured.
QString PrepareStore(const Places& places, int size) {
  QString problem = MakeFolders(places);
  if (!problem.isEmpty()) return problem;
  PimStore store(places.StoreFile);
  const StoreOpening opening(store);
  if (!opening.Succeeded()) return opening.Problem();
  ContactsFolder& contacts = *store.Contacts();
  const int count = contacts.Count(contacts.Items());
  if (count == 0) return FillStore(store, size);
  if (count == size) return {};
  return QStringLiteral("%1 holds %2 contacts, not %3").arg(places.StoreFile).arg(count).arg(size);
}

std::optional<MeasureColumn> MeasureSize(const TableRun& run, int size) {
  const QString home = QDir(run.Folder).filePath(QString::number(size));
  const Places places = HomePlaces(home, QProcessEnvironment());
  const auto prepared = RunApart([&]() -> std::optional<QByteArray> {
    const QString problem = PrepareStore(places, size);
    if (problem.isEmpty()) return QByteArray();
    run.Complain(problem);
    return std::nullopt;
  });
  if (!prepared) return std::nullopt;
  const auto measured = RunApart([&]() -> std::optional<QByteArray> {
    QString problem;
    const auto measures = run.Measure(places, problem);
    if (measures) return PackMeasures(*measures);
    run.Complain(problem);
    return std::nullopt;
  });
  if (!measured) return std::nullopt;
  return MeasureColumn{SizeText(size), UnpackMeasures(*measured)};
}

int PrintTable(const TableRun& run, const std::vector<int>& sizes) {
  std::vector<MeasureColumn> columns;
  for (const int size : sizes) {
    const auto column = MeasureSize(run, size);
    if (!column) return kExitFailed;
    columns.push_back(*column);
  }
  QTextStream(stdout) << MarkdownTable(columns);
  return kExitDone;
}

}  // namespace

int PrintSizedTable(const QString& program, int argc, char** argv, const MeasureHome& measure) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words.append(QFile::decodeName(argv[i]));
  const auto order = ParseOrder(words);
  if (!order) {
    QTextStream(stderr) << "usage: " << program << " [--in DIR] [SIZE...], sizes from "
                        << kLeastSize << " on\n";
    return kExitFailed;
  }
  const QTemporaryDir temporary;
  const TableRun run{.Program = program,
                     .Folder = order->Folder.isEmpty() ? temporary.path() : order->Folder,
                     .Measure = measure};
  if (order->Folder.isEmpty() && !temporary.isValid()) {
    run.Complain(temporary.errorString());
    return kExitFailed;
  }
  return PrintTable(run, order->Sizes);
}

}  // namespace quill::bench
