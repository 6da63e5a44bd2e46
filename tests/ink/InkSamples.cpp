#include "ink/InkSamples.h"

#include <QStringList>

#include <algorithm>
#include <random>

#include "ink/InkByteWriter.h"
#include "ink/InkChunks.h"

namespace quill::test {

namespace {

class NoteMaker {
 public:
  explicit NoteMaker(unsigned seed) : m_random(seed) {}

  InkNote Make();

 private:
  int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
  int Around(int most) { return Below(2 * most + 1) - most; }
  InkPen Pen();
  InkText Text();
  InkStrokePtr Stroke(int pens);
  InkPoint Point(quint8 parts, const InkPoint& last);

  std::mt19937 m_random;
};

InkPen NoteMaker::Pen() {
  InkPen pen;
  pen.Color = static_cast<quint32>(m_random());
  pen.Diameter = static_cast<quint32>(Below(70'000 - 4463));
  pen.Tip = Below(3) == 0 ? InkTip::Highlighter : InkTip::Round;
  pen.MinimumWidth = static_cast<quint8>(Below(101));
  return pen;
}

InkText NoteMaker::Text() {
  static const QStringList kWords{u"lines"_qs, u"\n"_qs,     u" 서울 "_qs, u"😀"_qs,
                                  u"é"_qs,     u"\uFEFF"_qs, u"\t"_qs};
  InkText text{
      .X = Around(9000), .Y = Around(9000), .WrapWidth = static_cast<quint32>(Below(9000))};
  for (int i = Below(30); i > 0; --i) {
    const QString word = kWords[Below(static_cast<int>(kWords.size()))];
    text.Text += word;
    text.Runs.push_back({.Length = static_cast<int>(word.size()),
                         .Flags = static_cast<quint8>(Below(8)),
                         .Size = static_cast<quint32>(1 + Below(65'536)),
                         .Color = static_cast<quint32>(m_random())});
    if (Below(3) == 0) text.SoftBreaks.push_back(static_cast<int>(text.Text.size()));
  }
  return text.Text.isEmpty() ? InkText{} : text;
}

// Mostly near the last one, now and then as far away as can be.
InkPoint NoteMaker::Point(quint8 parts, const InkPoint& last) {
  InkPoint point;
  const bool isFar = Below(50) == 0;
  point.X = isFar ? Around(1 << 29) * 2 : std::clamp(last.X + Around(40), -(1 << 30), 1 << 30);
  point.Y = isFar ? Around(1 << 29) * 2 : std::clamp(last.Y + Around(40), -(1 << 30), 1 << 30);
  if ((parts & kInkHasPressure) != 0) point.Pressure = static_cast<quint16>(Below(1024));
  if ((parts & kInkHasTilt) != 0) {
    point.TiltX = static_cast<qint8>(Around(90));
    point.TiltY = static_cast<qint8>(Around(90));
  }
  if ((parts & kInkHasTime) != 0) {
    point.Time = isFar ? static_cast<quint32>(m_random())
                       : last.Time + 5 + static_cast<quint32>(Below(8) == 0);
  }
  return point;
}

InkStrokePtr NoteMaker::Stroke(int pens) {
  InkStroke stroke{.Pen = static_cast<quint32>(Below(pens)),
                   .Parts = static_cast<quint8>(Below(8))};
  const bool isTimed = (stroke.Parts & kInkHasTime) != 0;
  if (isTimed) stroke.Start = 1'700'000'000'000 + Around(1'000'000'000);
  InkPoint point;
  for (int i = Below(40); i >= 0; --i) {
    point = Point(stroke.Parts, point);
    if (stroke.Points.empty()) point.Time = 0;
    stroke.Points.push_back(point);
  }
  return SealInkStroke(std::move(stroke));
}

InkNote NoteMaker::Make() {
  InkNote note;
  note.Page = {.Width = static_cast<quint32>(Below(1 << 30)),
               .ContentHeight = static_cast<quint32>(Below(1 << 30)),
               .RulePitch = static_cast<quint32>(Below(1000)),
               .Style = static_cast<quint8>(Below(256)),
               .Wrap = static_cast<quint8>(Below(256)),
               .View = static_cast<quint8>(Below(256)),
               .Zoom = static_cast<quint16>(Below(65'536)),
               .Created = Below(2) == 0 ? 0U : 1'700'000'000'000U};
  const int pens = 1 + Below(4);
  for (int i = 0; i < pens; ++i) note.Pens.push_back(Pen());
  note.Text = Text();
  for (int i = 1 + Below(200); i > 0; --i) note.Strokes.push_back(Stroke(pens));
  const auto isHighlighter = [&note](const InkStrokePtr& stroke) {
    return note.Pens[stroke->Pen].Tip == InkTip::Highlighter;
  };
  std::stable_partition(note.Strokes.begin(), note.Strokes.end(), isHighlighter);
  if (Below(2) == 0) note.Extras.push_back({"wiND", QByteArray(Below(40), 'w')});
  return note;
}

}  // namespace

InkNote SampleNote() {
  InkNote note;
  note.Page = {.Width = 7680, .ContentHeight = 1280, .RulePitch = 768};
  note.Pens = {{.Color = 0xFF102040, .Diameter = 64, .MinimumWidth = 25}};
  note.Text = {.X = 256,
               .Y = 0,
               .WrapWidth = 7168,
               .Text = u"Hi"_qs,
               .Runs = {{.Length = 2, .Size = 448, .Color = 0xFF000000}}};
  note.Strokes = {SealInkStroke({.Parts = kInkHasPressure | kInkHasTime,
                                 .Start = 1000,
                                 .Points = {{.X = 320, .Y = 640, .Pressure = 0, .Time = 0},
                                            {.X = 352, .Y = 648, .Pressure = 512, .Time = 5},
                                            {.X = 400, .Y = 640, .Pressure = 512, .Time = 10},
                                            {.X = 464, .Y = 608, .Pressure = 100, .Time = 16}}})};
  return note;
}

QByteArray SampleNoteBytes() {
  return QByteArray::fromHex(
      "89494e4b580d0a1a"
      "2800000048454144"
      "0100000020000000001e0000000500000003000010010000640000000000000000000000010000009ef1e09f"
      "0800000050454e53"
      "01402010ff400019cca7040e"
      "1300000054455854"
      "018004008038024869010200c003000000ff00951c1d4f"
      "1b0000005354524b"
      "00010003d00f048005800a402020101f2f00800800b7060a0001021de746f0"
      "08000000454e4446"
      "040000001566bf12cb34c152");
}

InkNote RandomNote(unsigned seed) { return NoteMaker(seed).Make(); }

bool SameInk(const InkNote& left, const InkNote& right) {
  const auto isSame = [](const InkStrokePtr& a, const InkStrokePtr& b) { return *a == *b; };
  return left.Page == right.Page && left.Pens == right.Pens && left.Text == right.Text &&
         std::ranges::equal(left.Strokes, right.Strokes, isSame) && left.Extras == right.Extras;
}

std::vector<Piece> PiecesOf(const QByteArray& note) {
  std::vector<Piece> pieces;
  InkChunkWalk walk(note);
  for (auto chunk = walk.Next(); chunk && chunk->Type != InkChunkType::kEnd; chunk = walk.Next()) {
    pieces.push_back({chunk->Type.toByteArray(), chunk->Payload.toByteArray()});
  }
  return pieces;
}

QByteArray Joined(const std::vector<Piece>& pieces) {
  QByteArray bytes = InkSignature().toByteArray();
  for (const Piece& piece : pieces) AppendInkChunk(bytes, piece.Type, piece.Payload);
  InkByteWriter end;
  end.U32(static_cast<quint32>(pieces.size()));
  end.U32(InkCheckSum(bytes));
  AppendInkChunk(bytes, InkChunkType::kEnd, end.Written());
  return bytes;
}

}  // namespace quill::test
