#include "ink/InkCompose.h"

#include <cstring>

namespace quill {
namespace {

// Two bytes of a pixel in one number, each with a byte's room above it.
constexpr quint32 kTwoBytes = 0x00FF00FF;

// Both of them, each a product of two bytes, divided by 255 and rounded.
constexpr quint32 DivideBoth(quint32 products) {
  const quint32 raised = products + 0x00800080;
  return ((raised + ((raised >> 8) & kTwoBytes)) >> 8) & kTwoBytes;
}

constexpr quint32 Divide(quint32 product) {
  const quint32 raised = product + 128;
  return (raised + (raised >> 8)) >> 8;
}

// Lays a colour over pixels.
class Over {
 public:
  explicit Over(QRgb color)
      : m_solid(color | 0xFF000000),
        m_even(color & kTwoBytes),
        m_odd((m_solid >> 8) & kTwoBytes),
        m_alpha(qAlpha(color)) {}

  QRgb operator()(QRgb below, quint32 cover) const {
    const quint32 alpha = Divide(cover * m_alpha);
    if (alpha == 255) return m_solid;
    const quint32 rest = 255 - alpha;
    const quint32 even = DivideBoth(m_even * alpha + (below & kTwoBytes) * rest);
    const quint32 odd = DivideBoth(m_odd * alpha + ((below >> 8) & kTwoBytes) * rest);
    return even | (odd << 8);
  }

 private:
  QRgb m_solid;
  quint32 m_even;
  quint32 m_odd;
  quint32 m_alpha;
};

// Multiplies pixels with a colour. Where nothing is below, the colour itself stays.
class Multiply {
 public:
  explicit Multiply(QRgb color) : m_color(color) {}

  QRgb operator()(QRgb below, quint32 cover) const {
    const quint32 alpha = Divide(cover * qAlpha(m_color));
    const quint32 free = 255 - qAlpha(below);
    const auto channel = [&](quint32 color, quint32 value) {
      return (color * alpha * (value + free) + 255 * value * (255 - alpha) + 32512) / 65025;
    };
    return qRgba(channel(qRed(m_color), qRed(below)), channel(qGreen(m_color), qGreen(below)),
                 channel(qBlue(m_color), qBlue(below)), channel(255, qAlpha(below)));
  }

 private:
  QRgb m_color;
};

// Most of a stroke's rectangle is not covered: eight bytes of nothing are passed at once.
int EndOfNothing(const uchar* covers, int from, int count) {
  quint64 eight = 0;
  while (from + 8 <= count) {
    std::memcpy(&eight, covers + from, sizeof(eight));
    if (eight != 0) break;
    from += 8;
  }
  while (from < count && covers[from] == 0) ++from;
  return from;
}

template <typename Blend>
void ComposeRow(QRgb* pixels, const uchar* covers, int count, const Blend& blend) {
  for (int x = EndOfNothing(covers, 0, count); x < count;) {
    pixels[x] = blend(pixels[x], covers[x]);
    ++x;
    if (x < count && covers[x] == 0) x = EndOfNothing(covers, x, count);
  }
}

// Area lies in both.
template <typename Blend>
void ComposeRows(QImage& image, const QPoint& origin, const InkMask& mask, const QRect& area,
                 const Blend& blend) {
  uchar* const bits = image.bits();
  const qsizetype stride = image.bytesPerLine();
  for (int y = area.top(); y <= area.bottom(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(bits + (y - origin.y()) * stride);
    ComposeRow(row + (area.left() - origin.x()), mask.Row(area.left(), y), area.width(), blend);
  }
}

}  // namespace

void ComposeInk(QImage& image, const QPoint& origin, const InkMask& mask, const QRect& area,
                const InkPen& pen) {
  const QRect both = area & mask.Area() & QRect(origin, image.size());
  if (both.isEmpty()) return;
  const bool known = image.format() == QImage::Format_RGB32 ||
                     image.format() == QImage::Format_ARGB32_Premultiplied;
  if (!known) return;
  if (pen.Tip == InkTip::Highlighter) {
    ComposeRows(image, origin, mask, both, Multiply(pen.Color));
  } else {
    ComposeRows(image, origin, mask, both, Over(pen.Color));
  }
}

}  // namespace quill
