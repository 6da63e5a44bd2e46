#include "editor/ui/ImportedDetailsDlg.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocumentFragment>

#include "resources/ContactDialogs.h"

namespace quill {

namespace {

QString TextOf(const std::vector<CarriedDetail>& details) {
  QStringList texts;
  for (const CarriedDetail& detail : details)
    texts += detail.Label + QStringLiteral(": ") + detail.Text;
  return texts.isEmpty() ? QStringLiteral("Nothing beyond the sheet.") : texts.join(u'\n');
}

}  // namespace

CImportedDetailsDlg::CImportedDetailsDlg(CScreen& screen, const std::vector<CarriedDetail>& details)
    : CDialog(screen, resources::kImportedDetailsDialog) {
  auto* const text = qobject_cast<QPlainTextEdit*>(Control(ImportedDetailsIds::kText));
  text->setReadOnly(true);
  text->setAccessibleName(Caption());
  text->setPlainText(TextOf(details));
  auto* const copy = qobject_cast<QPushButton*>(Control(ImportedDetailsIds::kCopy));
  connect(copy, &QPushButton::clicked, this, &CImportedDetailsDlg::Copy);
}

// What is selected, else all of it.
void CImportedDetailsDlg::Copy() {
  auto* const text = qobject_cast<QPlainTextEdit*>(Control(ImportedDetailsIds::kText));
  const QTextCursor cursor = text->textCursor();
  QGuiApplication::clipboard()->setText(cursor.hasSelection() ? cursor.selection().toPlainText()
                                                              : text->toPlainText());
}

}  // namespace quill
