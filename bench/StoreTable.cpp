// quill-store-table [--in DIR] [SIZE...]: measures stores of so many made-up contacts and prints a
// table in Markdown. Homes of the stores are DIR/SIZE, made where they are missing and left there;
// without DIR they are temporary.
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextStream>

#include <unistd.h>

#include <optional>

#include "RunApart.h"
#include "StoreGenerator.h"
#include "StoreMeasures.h"
#include "app/Places.h"
#include "app/StoreOpening.h"
#include "cli/ProgressLine.h"
#include "store/pim/PimStore.h"

namespace {

using namespace quill;

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

void Complain(const QString& problem) {
  QTextStream(stderr) << "quill-store-table: " << problem << Qt::endl;
}

QString FillStore(PimStore& store, int size) {
  QTextStream err(stderr);
  const Console console{err, err, isatty(STDERR_FILENO) == 1};
  ProgressLine line(console);
  bench::StoreGenerator generator(store, kSeed, [&line, size](int made) {
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

std::optional<bench::MeasureColumn> MeasureSize(const QString& folder, int size) {
  const QString home = QDir(folder).filePath(QString::number(size));
  const Places places = HomePlaces(home, QProcessEnvironment());
  const auto prepared = bench::RunApart([&]() -> std::optional<QByteArray> {
    const QString problem = PrepareStore(places, size);
    if (problem.isEmpty()) return QByteArray();
    Complain(problem);
    return std::nullopt;
  });
  if (!prepared) return std::nullopt;
  const auto measured = bench::RunApart([&]() -> std::optional<QByteArray> {
    QString problem;
    const auto measures = bench::MeasureStore(places.StoreFile, {}, problem);
    if (measures) return bench::PackMeasures(*measures);
    Complain(problem);
    return std::nullopt;
  });
  if (!measured) return std::nullopt;
  return bench::MeasureColumn{SizeText(size), bench::UnpackMeasures(*measured)};
}

int PrintTable(const QString& folder, const std::vector<int>& sizes) {
  std::vector<bench::MeasureColumn> columns;
  for (const int size : sizes) {
    const auto column = MeasureSize(folder, size);
    if (!column) return kExitFailed;
    columns.push_back(*column);
  }
  QTextStream(stdout) << bench::MarkdownTable(columns);
  return kExitDone;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words.append(QFile::decodeName(argv[i]));
  const auto order = ParseOrder(words);
  if (!order) {
    QTextStream(stderr) << "usage: quill-store-table [--in DIR] [SIZE...], sizes from "
                        << kLeastSize << " on\n";
    return kExitFailed;
  }
  if (!order->Folder.isEmpty()) return PrintTable(order->Folder, order->Sizes);
  const QTemporaryDir folder;
  if (folder.isValid()) return PrintTable(folder.path(), order->Sizes);
  Complain(folder.errorString());
  return kExitFailed;
}
