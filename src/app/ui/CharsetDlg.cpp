#include "app/ui/CharsetDlg.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>

#include "exchange/CharsetChoices.h"
#include "exchange/CharsetProbe.h"
#include "platform/ui/Look.h"
#include "resources/FileDialogs.h"

namespace quill {

namespace {

QComboBox& ListOf(const CDialog& dialog) {
  return *qobject_cast<QComboBox*>(dialog.Control(CharsetIds::kCharset));
}

}  // namespace

CCharsetDlg::CCharsetDlg(CScreen& screen, const QByteArray& line, const QByteArray& preset)
    : CDialog(screen, resources::kCharsetDialog), m_line(line) {
  QComboBox& list = ListOf(*this);
  list.setAccessibleName(Caption());
  for (const CharsetChoice& choice : kCharsetChoices)
    list.addItem(choice.Title.toString(), QByteArray(choice.Name));
  list.setCurrentIndex(list.findData(preset));
  connect(&list, &QComboBox::currentIndexChanged, this, [this] { ShowPreview(); });
  ShowPreview();
}

QByteArray CCharsetDlg::Charset() const { return ListOf(*this).currentData().toByteArray(); }

void CCharsetDlg::ShowPreview() {
  auto& label = *qobject_cast<QLabel*>(Control(CharsetIds::kPreview));
  const QString text = TextInCharset(m_line, Charset());
  label.setText(QFontMetrics(NormalFont()).elidedText(text, Qt::ElideRight, label.width()));
}

}  // namespace quill
