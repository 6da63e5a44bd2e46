#include "ink/ui/InkAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <utility>

#include "ink/InkView.h"
#include "ink/ui/InkMarks.h"
#include "ink/ui/InkX.h"

namespace quill {

namespace {

QString StrokeCount(const InkNote& note) {
  const std::size_t count = note.Strokes.size();
  return count == 1 ? QStringLiteral("1 stroke") : QStringLiteral("%1 strokes").arg(count);
}

// Positions are UTF-16 units of the typed text; rectangles are desktop pixels.
class AccessibleInk : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit AccessibleInk(InkX& ink) : QAccessibleWidget(&ink, QAccessible::Document), m_ink(ink) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : QAccessibleWidget::interface_cast(type);
  }

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

  QString text(int from, int to) const override { return Typed().mid(from, to - from); }
  int characterCount() const override { return static_cast<int>(Typed().size()); }
  int cursorPosition() const override {
    return m_ink.inputMethodQuery(Qt::ImCursorPosition).toInt();
  }
  void setCursorPosition(int) override {}
  int selectionCount() const override {
    return m_ink.inputMethodQuery(Qt::ImCurrentSelection).toString().isEmpty() ? 0 : 1;
  }
  void selection(int, int* from, int* to) const override {
    const int anchor = m_ink.inputMethodQuery(Qt::ImAnchorPosition).toInt();
    *from = std::min(anchor, cursorPosition());
    *to = std::max(anchor, cursorPosition());
  }
  // The pen and the keys select.
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  void scrollToSubstring(int, int) override {}
  QRect characterRect(int at) const override {
    const QRectF caret = m_ink.Document().TextLayout().Caret(at);
    const QRect inControl = m_ink.PageView().WindowFromPage(caret).toAlignedRect();
    return {m_ink.mapToGlobal(inControl.topLeft()), inControl.size()};
  }
  int offsetAtPoint(const QPoint& at) const override {
    const QPointF onPage = m_ink.PageView().PageFromWindow(m_ink.mapFromGlobal(at));
    return m_ink.Document().TextLayout().PositionAt(onPage);
  }
  QString attributes(int, int* from, int* to) const override {
    *from = 0;
    *to = characterCount();
    return {};
  }

 private:
  const QString& Typed() const { return m_ink.Document().Note().Text.Text; }

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

void TellInkText(InkX& ink, QString& told) {
  const QString before = std::exchange(told, ink.Document().Note().Text.Text);
  if (!QAccessible::isActive() || before == told) return;
  const auto same = std::ranges::mismatch(before, told);
  const auto from = same.in1 - before.begin();
  qsizetype end = 0;  // how much is the same at the end
  while (end < std::min(before.size(), told.size()) - from &&
         before[before.size() - 1 - end] == told[told.size() - 1 - end])
    ++end;
  QAccessibleTextUpdateEvent event(&ink, static_cast<int>(from),
                                   before.sliced(from, before.size() - from - end),
                                   told.sliced(from, told.size() - from - end));
  event.setCursorPosition(ink.inputMethodQuery(Qt::ImCursorPosition).toInt());
  QAccessible::updateAccessibility(&event);
}

void TellInkCaret(InkX& ink) {
  if (!QAccessible::isActive()) return;
  QAccessibleTextCursorEvent event(&ink, ink.inputMethodQuery(Qt::ImCursorPosition).toInt());
  QAccessible::updateAccessibility(&event);
}

void InstallInkAccessibility() { QAccessible::installFactory(MakeInterface); }

}  // namespace quill
