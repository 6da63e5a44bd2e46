#include "platform/ui/Edit.h"

namespace quill {

CEdit::CEdit(const QString& text, QWidget* parent) : WithEditMenu(text, parent) {}

}  // namespace quill
