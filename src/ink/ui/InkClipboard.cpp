#include "ink/ui/InkClipboard.h"

#include <QBuffer>

#include <utility>

#include "ink/InkExport.h"
#include "ink/InkFormat.h"

namespace quill {

namespace {

constexpr double kPictureTimes = 2;
const QString kSvg = QStringLiteral("image/svg+xml");
const QString kPng = QStringLiteral("image/png");
const QString kText = QStringLiteral("text/plain");

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

// Makes each form when somebody asks for it: a page of pictures that nobody pastes costs nothing.
class CopiedInk : public QMimeData {
 public:
  explicit CopiedInk(InkNote fragment) : m_fragment(std::move(fragment)) {}

  QStringList formats() const override {
    QStringList formats{QString::fromLatin1(kInkMimeType)};
    if (!m_fragment.Strokes.empty()) formats << kSvg << kPng;
    if (!m_fragment.Text.Text.isEmpty()) formats << kText;
    return formats;
  }
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType) const override {
    if (!hasFormat(format)) return {};
    if (format == kSvg) return InkSvg(m_fragment);
    if (format == kPng) return PngOf(m_fragment);
    if (format == kText) return m_fragment.Text.Text;
    return WriteInk(m_fragment);
  }

 private:
  const InkNote m_fragment;
};

}  // namespace

std::unique_ptr<QMimeData> InkMimeData(const InkNote& fragment) {
  return std::make_unique<CopiedInk>(fragment);
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
