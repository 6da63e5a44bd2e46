#include "ink/ui/InkAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ink/ui/InkMarks.h"
#include "ink/ui/InkX.h"

namespace quill {

namespace {

QString StrokeCount(const InkNote& note) {
  const std::size_t count = note.Strokes.size();
  return count == 1 ? QStringLiteral("1 stroke") : QStringLiteral("%1 strokes").arg(count);
}

class AccessibleInk : public QAccessibleWidget {
 public:
  explicit AccessibleInk(InkX& ink) : QAccessibleWidget(&ink, QAccessible::Document), m_ink(ink) {}

  QString text(QAccessible::Text text) const override {
    const InkNote& note = m_ink.Document().Note();
    switch (text) {
      case QAccessible::Name:
        return QStringLiteral("Note");
      case QAccessible::Value:
        return note.Text.Text;
      case QAccessible::Description:
        return Description();
      default:
        return QAccessibleWidget::text(text);
    }
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = m_ink.readOnly() || m_ink.Document().IsLocked();
    state.editable = !state.readOnly;
    state.multiLine = true;
    return state;
  }

 private:
  QString Description() const {
    const InkDocument& document = m_ink.Document();
    const QString notice = InkNoticeText(document.Notice());
    const QString strokes = StrokeCount(document.Note());
    return notice.isEmpty() ? strokes : notice + QStringLiteral(". ") + strokes;
  }

  InkX& m_ink;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* const ink = qobject_cast<InkX*>(object);
  return ink ? new AccessibleInk(*ink) : nullptr;
}

}  // namespace

void InstallInkAccessibility() { QAccessible::installFactory(MakeInterface); }

}  // namespace quill
