#include "ink/ui/InkClipboard.h"

#include <QBuffer>

#include "ink/InkExport.h"
#include "ink/InkFormat.h"

namespace quill {

namespace {

constexpr double kPictureTimes = 2;

QByteArray PngOf(const InkNote& fragment) {
  const QImage image = InkImage(fragment, kPictureTimes);
  if (image.isNull()) return {};
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return png;
}

InkNote NoteOfText(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(u'\r', u'\n');
  text.remove(QChar::Null);
  InkNote note;
  note.Text.Text = text;
  return note;
}

}  // namespace

std::unique_ptr<QMimeData> InkMimeData(const InkNote& fragment) {
  auto data = std::make_unique<QMimeData>();
  data->setData(QString::fromLatin1(kInkMimeType), WriteInk(fragment));
  if (!fragment.Strokes.empty()) {
    data->setData(QStringLiteral("image/svg+xml"), InkSvg(fragment));
    if (const QByteArray png = PngOf(fragment); !png.isEmpty())
      data->setData(QStringLiteral("image/png"), png);
  }
  if (!fragment.Text.Text.isEmpty()) data->setText(fragment.Text.Text);
  return data;
}

bool HoldsInk(const QMimeData& data) {
  return data.hasFormat(QString::fromLatin1(kInkMimeType)) || data.hasText();
}

std::optional<InkNote> InkFrom(const QMimeData& data) {
  const InkContent content = ReadInk(data.data(QString::fromLatin1(kInkMimeType)));
  if (!content.Note.IsEmpty()) return content.Note;
  if (!data.hasText() || data.text().isEmpty()) return std::nullopt;
  return NoteOfText(data.text());
}

}  // namespace quill
