#include "platform/ui/Look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPalette>
#include <QPixmapCache>
#include <QStandardPaths>

#include "platform/ui/PenStyle.h"

namespace quill {

namespace {

constexpr int kPixelSize = 12;
constexpr double kSampleWidthLimit = 123;  // Tahoma: 117

QFont MakeFont(const QString& family, int pixelSize) {
  QFont font(family);
  font.setPixelSize(pixelSize);
  font.setHintingPreference(QFont::PreferNoHinting);  // the same widths at every scale
  font.setKerning(true);
  return font;
}

bool IsInstalled(const QFont& font) {
  return QFontInfo(font).family().compare(font.family(), Qt::CaseInsensitive) == 0;
}

QFont LargestThatFits(const QString& family) {
  for (int size = kPixelSize; size > 8; --size) {
    const QFont font = MakeFont(family, size);
    const QString sample = QStringLiteral("Sample text 010-1234");
    if (QFontMetricsF(font).horizontalAdvance(sample) <= kSampleWidthLimit) return font;
  }
  return MakeFont(family, 8);
}

QFont ChooseFont() {
  // Tahoma's package keeps it outside the font search path. Its bold file is wide rather than bold,
  // so bold is synthesised.
  const QString file = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                              QStringLiteral("wine/fonts/tahoma.ttf"));
  if (!file.isEmpty()) QFontDatabase::addApplicationFont(file);
  for (const char* family : {"Tahoma", "DejaVu Sans Condensed", "Noto Sans", "Liberation Sans"}) {
    const QString name = QString::fromLatin1(family);
    if (IsInstalled(MakeFont(name, kPixelSize))) return LargestThatFits(name);
  }
  return LargestThatFits(QStringLiteral("DejaVu Sans"));
}

// A full light palette, or the desktop's dark theme would leak into the controls.
QPalette LightPalette() {
  const QColor window(0xF0, 0xF0, 0xF0);
  const QColor disabled(0x8C, 0x8C, 0x8C);
  QPalette palette(QColor(0xE4, 0xE4, 0xE4), window);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF8, 0xF8, 0xF8));
  palette.setColor(QPalette::Highlight, QColor(0x33, 0x66, 0x99));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, disabled);
  palette.setColor(QPalette::ToolTipBase, Qt::white);
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Link, QColor(0x1F, 0x4E, 0x79));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, disabled);
  palette.setColor(QPalette::Disabled, QPalette::Base, window);
  return palette;
}

}  // namespace

void SetUpLook(QApplication& application) {
  // The style would keep pictures of buttons, boxes and the like under names that are new with each
  // window's palette: they are never asked for again, and their names stay even when they go.
  QPixmapCache::setCacheLimit(0);
  application.setStyle(new PenStyle);
  application.setPalette(LightPalette());
  application.setFont(ChooseFont());
}

QFont NormalFont() { return QApplication::font(); }

QFont BoldFont() {
  QFont font = QApplication::font();
  font.setBold(true);
  return font;
}

}  // namespace quill
