// quill-store-table [--in DIR] [SIZE...]: what the store takes for what a list asks of it.
#include "SizedStores.h"
#include "StoreMeasures.h"

int main(int argc, char** argv) {
  using namespace quill;
  return bench::PrintSizedTable(QStringLiteral("quill-store-table"), argc, argv,
                                [](const Places& places, QString& problem) {
                                  return bench::MeasureStore(places.StoreFile, {}, problem);
                                });
}
