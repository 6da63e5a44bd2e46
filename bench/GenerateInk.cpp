// quill-generate-ink STROKES NOTE.pwi PAGE.xml: writes the same made-up handwriting as a note, and
// as the XML that the program it is compared with reads (tools/compare-ink).
#include <QFile>
#include <QTextStream>

#include "InkPages.h"
#include "ink/InkFormat.h"

namespace quill::bench {
namespace {

constexpr double kPointsPerUnit = 0.75 / kInkUnitsPerPixel;  // of 72 to the inch

double Width(const InkPen& pen, const InkPoint& point) {
  const double part = static_cast<double>(point.Pressure) / kFullPressure;
  return pen.Diameter * kPointsPerUnit * (pen.MinimumWidth + (100 - pen.MinimumWidth) * part) / 100;
}

// A width for the pen and one for each segment, then the places.
void WriteStroke(QTextStream& out, const InkPen& pen, const InkStroke& stroke) {
  out << R"(<stroke tool="pen" color="#102040ff" width=")" << pen.Diameter * kPointsPerUnit;
  for (size_t next = 1; next < stroke.Points.size(); ++next) {
    out << ' ' << Width(pen, stroke.Points[next]);
  }
  out << R"(" capStyle="round">)";
  for (const InkPoint& point : stroke.Points) {
    out << point.X * kPointsPerUnit << ' ' << point.Y * kPointsPerUnit << ' ';
  }
  out << "</stroke>\n";
}

QByteArray PageXml(const InkNote& note) {
  QByteArray bytes;
  QTextStream out(&bytes);
  out.setRealNumberPrecision(8);
  out << R"(<?xml version="1.0" standalone="no"?>)" << '\n'
      << R"(<xournal creator="Xournal++ 1.1.3" fileversion="4"><title>Page</title>)" << '\n'
      << R"(<page width=")" << note.Page.Width * kPointsPerUnit << R"(" height=")"
      << note.Page.ContentHeight * kPointsPerUnit << R"(">)" << '\n'
      << R"(<background type="solid" color="#ffffffff" style="plain"/><layer>)" << '\n';
  for (const InkStrokePtr& stroke : note.Strokes) WriteStroke(out, note.Pens[0], *stroke);
  out << "</layer></page></xournal>\n";
  out.flush();
  return bytes;
}

bool WriteFile(const char* path, const QByteArray& bytes) {
  QFile file(QString::fromLocal8Bit(path));
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  using namespace quill;
  const int strokes = argc == 4 ? QByteArray(argv[1]).toInt() : 0;
  if (strokes < 1) {
    qCritical("quill-generate-ink STROKES NOTE.pwi PAGE.xml");
    return 2;
  }
  const InkNote note = bench::WrittenPage(strokes);
  const bool written =
      bench::WriteFile(argv[2], WriteInk(note)) && bench::WriteFile(argv[3], bench::PageXml(note));
  return written ? 0 : 1;
}
