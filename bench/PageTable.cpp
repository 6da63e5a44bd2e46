// quill-page-table [--in DIR] [SIZE...]: how long the list's window takes from a request to the
// painted page. Needs no display with QT_QPA_PLATFORM=offscreen.
#include "PageMeasures.h"
#include "SizedStores.h"

int main(int argc, char** argv) {
  using namespace quill;
  return bench::PrintSizedTable(
      QStringLiteral("quill-page-table"), argc, argv,
      [](const Places& places, QString& problem) { return bench::MeasurePages(places, problem); });
}
