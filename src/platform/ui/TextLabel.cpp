#include "platform/ui/TextLabel.h"

#include <QPainter>
#include <QTextLayout>

#include "platform/ScreenLayout.h"
#include "platform/ui/Look.h"

namespace quill {

namespace {

// The lines of one paragraph, none of them wider than this where a word can be broken.
QStringList WrapParagraph(const QString& text, int width) {
  QTextLayout layout(text, NormalFont());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  QStringList lines;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
  }
  layout.endLayout();
  return lines.isEmpty() ? QStringList(QString()) : lines;
}

QStringList WrapText(const QString& text, int width) {
  QStringList lines;
  for (const QString& paragraph : text.split(u'\n')) lines += WrapParagraph(paragraph, width);
  return lines;
}

}  // namespace

CTextLabel::CTextLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setWordWrap(true);
}

int CTextLabel::heightForWidth(int width) const { return TextHeight(text(), width); }

void CTextLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText));
  int baseLine = kCellAscent;
  for (const QString& line : WrapText(text(), width())) {
    painter.drawText(0, baseLine, line);
    baseLine += kCellHeight;
  }
}

int TextHeight(const QString& text, int width) {
  return static_cast<int>(WrapText(text, width).size()) * kCellHeight;
}

}  // namespace quill
