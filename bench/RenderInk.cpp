// quill-render-ink NOTE.pwi PICTURE.png [WIDTH HEIGHT]: paints the ink of a note at 100 %, the
// whole page or its first view of that size, as a PNG picture.
#include <QFile>

#include "InkPages.h"
#include "ink/InkFormat.h"
#include "ink/InkGeometry.h"

int main(int argc, char** argv) {
  using namespace quill;
  if (argc != 3 && argc != 5) {
    qCritical("quill-render-ink NOTE.pwi PICTURE.png [WIDTH HEIGHT]");
    return 2;
  }
  QFile file(QString::fromLocal8Bit(argv[1]));
  if (!file.open(QIODevice::ReadOnly)) return 1;
  const InkContent content = ReadInk(file.readAll());
  if (content.Reading != InkReading::Whole) return 1;
  const double scale = InkScale(100, 1);
  QRect area = bench::PageArea(content.Note, scale);
  if (argc == 5) area &= QRect(0, 0, QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt());
  const QImage image = bench::RenderPage(content.Note, scale, area);
  // Ink compresses better this way than by default, in half the time.
  constexpr int kQuality = 80;
  return image.save(QString::fromLocal8Bit(argv[2]), "PNG", kQuality) ? 0 : 1;
}
