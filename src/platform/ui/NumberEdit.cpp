#include "platform/ui/NumberEdit.h"

#include <QRegularExpressionValidator>

namespace quill {

CNumberEdit::CNumberEdit(const QString& name, QWidget* parent) : CPanelEdit(QString(), parent) {
  const QRegularExpression digits(QStringLiteral("[0-9]{0,6}"));
  setAccessibleName(name);
  setInputMethodHints(Qt::ImhDigitsOnly);
  setValidator(new QRegularExpressionValidator(digits, this));
}

}  // namespace quill
