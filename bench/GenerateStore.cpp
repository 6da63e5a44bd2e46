// quill-generate N DIR [--seed S]: a home in the folder DIR whose store holds N made-up contacts.
#include <QFile>
#include <QStringList>

#include <unistd.h>

#include <cstdio>
#include <optional>

#include "StoreGenerator.h"
#include "app/Places.h"
#include "app/ProgressLine.h"
#include "app/StoreOpening.h"
#include "store/pim/PimStore.h"

namespace {

using namespace quill;

struct GenerateOrder {
  int Count = 0;
  QString Folder;
  unsigned Seed = 1;
};

std::optional<GenerateOrder> ParseOrder(QStringList words) {
  GenerateOrder order;
  bool isNumber = true;
  if (const qsizetype at = words.indexOf(QStringLiteral("--seed")); at >= 0) {
    order.Seed = words.value(at + 1).toUInt(&isNumber);
    words.remove(at, std::min<qsizetype>(2, words.size() - at));
  }
  if (!isNumber || words.size() != 2) return std::nullopt;
  order.Count = words.first().toInt(&isNumber);
  order.Folder = words.last();
  const bool isFolder = !order.Folder.isEmpty() && !order.Folder.startsWith(u'-');
  return isNumber && order.Count > 0 && isFolder ? std::optional(order) : std::nullopt;
}

QString FillHome(const GenerateOrder& order, const Console& console) {
  const Places places = HomePlaces(order.Folder, QProcessEnvironment());
  const QString problem = MakeFolders(places);
  if (!problem.isEmpty()) return problem;
  PimStore store(places.StoreFile);
  const StoreOpening opening(store);
  if (!opening.Succeeded()) return opening.Problem();
  ProgressLine line(console);
  bench::StoreGenerator generator(store, order.Seed, [&line, &order](int made) {
    line.Show(QStringLiteral("%1 of %2 contacts").arg(made).arg(order.Count));
  });
  return generator.Fill(order.Count);
}

}  // namespace

int main(int argc, char** argv) {
  QTextStream out(stdout);
  QTextStream err(stderr);
  QStringList words;
  for (int i = 1; i < argc; ++i) words.append(QFile::decodeName(argv[i]));
  const auto order = ParseOrder(words);
  if (!order) {
    err << "usage: quill-generate N DIR [--seed S]\n";
    return kExitFailed;
  }
  const QString problem = FillHome(*order, {out, err, isatty(STDERR_FILENO) == 1});
  if (problem.isEmpty()) return kExitDone;
  err << "quill-generate: " << problem << '\n';
  return kExitFailed;
}
