#include "platform/ui/Accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QPointer>

#include <vector>

#include "platform/ui/ControlAccessibility.h"
#include "platform/ui/ModalWindow.h"
#include "platform/ui/PaintedWindow.h"
#include "platform/ui/SheetPage.h"

namespace quill {

namespace {

QAccessible::Role RoleOf(PaintedRole role) {
  switch (role) {
    case PaintedRole::ListItem:
      return QAccessible::ListItem;
    case PaintedRole::Button:
      return QAccessible::PushButton;
    case PaintedRole::CheckBox:
      return QAccessible::CheckBox;
    case PaintedRole::MenuItem:
      return QAccessible::MenuItem;
    case PaintedRole::PageTab:
      return QAccessible::PageTab;
    case PaintedRole::Separator:
      return QAccessible::Separator;
    case PaintedRole::Text:
      return QAccessible::StaticText;
  }
  Q_UNREACHABLE();
}

QAccessible::Role RoleOf(WindowKind kind) {
  switch (kind) {
    case WindowKind::Frame:
      return QAccessible::Window;
    case WindowKind::Message:
      return QAccessible::AlertMessage;
    case WindowKind::Card:
      return QAccessible::ToolTip;
    case WindowKind::Sheet:
    case WindowKind::Dialog:
      return QAccessible::Dialog;
  }
  Q_UNREACHABLE();
}

// A row of a painted window, by its index. Outlives neither the window's interface nor, as a valid
// object, its row.
class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleRow(CPaintedWindow& window, int row) : m_window(&window), m_row(row) {}

  bool isValid() const override { return Row() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override {
    return m_window ? m_window->window()->windowHandle() : nullptr;
  }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(m_window);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text text) const override {
    return text == QAccessible::Name && Row() ? Row()->SpokenName : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!Row()) return {};
    const QRect area = Row()->Rectangle;
    return {m_window->mapToGlobal(area.topLeft()), area.size()};
  }
  QAccessible::Role role() const override {
    return Row() ? RoleOf(Row()->Role) : QAccessible::NoRole;
  }
  QAccessible::State state() const override;

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override;
  void doAction(const QString& action) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const PaintedRow* Row() const {
    const bool exists = m_window && m_row < static_cast<int>(m_window->Rows().size());
    return exists ? &m_window->Rows()[static_cast<std::size_t>(m_row)] : nullptr;
  }

  QPointer<CPaintedWindow> m_window;
  int m_row;
};

QAccessible::State AccessibleRow::state() const {
  QAccessible::State state;
  const PaintedRow* const row = Row();
  if (!row || !m_window->isVisible()) {
    state.invisible = true;
    return state;
  }
  state.disabled = row->State.testFlag(PaintedStateFlag::Disabled);
  state.selected = row->State.testFlag(PaintedStateFlag::Selected);
  state.selectable = row->State.testFlag(PaintedStateFlag::Selectable);
  state.focused = row->State.testFlag(PaintedStateFlag::Current);
  state.focusable =
      !state.disabled && m_window->focusPolicy() != Qt::NoFocus && !actionNames().isEmpty();
  state.checked = row->State.testFlag(PaintedStateFlag::Checked);
  state.checkable = state.checked || row->Role == PaintedRole::CheckBox;
  state.offscreen = !m_window->rect().intersects(row->Rectangle);
  state.hasPopup = row->State.testFlag(PaintedStateFlag::HasPopup);
  return state;
}

QStringList AccessibleRow::actionNames() const {
  const PaintedRow* const row = Row();
  if (!row || row->Role == PaintedRole::Separator) return {};
  const bool isText = row->Role == PaintedRole::Text;
  const bool isCheckBox = row->Role == PaintedRole::CheckBox;
  const bool hasMenu =
      row->Role == PaintedRole::ListItem || row->State.testFlag(PaintedStateFlag::HasPopup);
  QStringList names;
  if (!isText) names.append(isCheckBox ? toggleAction() : pressAction());
  if (hasMenu) names.append(showMenuAction());
  return names;
}

// Later, not now: what it begins may wait for the user, and the caller waits for an answer.
void AccessibleRow::doAction(const QString& action) {
  if (!actionNames().contains(action)) return;
  const bool presses = action != showMenuAction();
  QMetaObject::invokeMethod(
      m_window,
      [window = m_window.data(), row = m_row, presses] {
        if (row >= static_cast<int>(window->Rows().size())) return;
        presses ? window->ActivateRow(row) : window->ShowRowMenu(row);
      },
      Qt::QueuedConnection);
}

class AccessiblePaintedWindow : public QAccessibleWidget {
 public:
  explicit AccessiblePaintedWindow(CPaintedWindow& window)
      : QAccessibleWidget(&window, window.Role()), m_window(window) {}
  ~AccessiblePaintedWindow() override {
    for (const QAccessible::Id id : m_rows) QAccessible::deleteAccessibleInterface(id);
  }

  // The rows, then the controls that stand in the window.
  int childCount() const override { return RowCount() + QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return index < RowCount() ? Row(index) : QAccessibleWidget::child(index - RowCount());
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
      QAccessibleInterface* const control = QAccessibleWidget::child(i);
      if (!control->state().invisible && control->rect().contains(x, y)) return control;
    }
    return Row(m_window.RowAt(m_window.mapFromGlobal(QPoint(x, y))));
  }
  QAccessibleInterface* focusChild() const override {
    const QWidget* const focused = QApplication::focusWidget();
    if (focused != &m_window && m_window.isAncestorOf(focused))
      return QAccessibleWidget::focusChild();
    return Row(m_window.CurrentRow());
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
    for (std::size_t i = 0; i < m_rows.size(); ++i)
      if (m_rows[i] == id) return static_cast<int>(i);
    const int control = QAccessibleWidget::indexOfChild(child);
    return control < 0 ? -1 : RowCount() + control;
  }

 private:
  int RowCount() const { return static_cast<int>(m_window.Rows().size()); }
  // Null when there is no such row.
  QAccessibleInterface* Row(int index) const {
    if (index < 0 || index >= RowCount()) return nullptr;
    while (static_cast<int>(m_rows.size()) <= index)
      m_rows.push_back(QAccessible::registerAccessibleInterface(
          new AccessibleRow(m_window, static_cast<int>(m_rows.size()))));
    return QAccessible::accessibleInterface(m_rows[static_cast<std::size_t>(index)]);
  }

  CPaintedWindow& m_window;
  mutable std::vector<QAccessible::Id> m_rows;  // made when asked for
};

// The kind is asked each time: assistive technology may look while the window is still being made.
class AccessibleWindow : public QAccessibleWidget {
 public:
  explicit AccessibleWindow(CWindow& window) : QAccessibleWidget(&window), m_window(window) {}
  QAccessible::Role role() const override { return RoleOf(m_window.Kind()); }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = qobject_cast<CModalWindow*>(&m_window) != nullptr;
    return state;
  }

 private:
  CWindow& m_window;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  if (auto* const painted = qobject_cast<CPaintedWindow*>(object))
    return new AccessiblePaintedWindow(*painted);
  if (auto* const window = qobject_cast<CWindow*>(object)) return new AccessibleWindow(*window);
  if (auto* const page = qobject_cast<CSheetPage*>(object))
    return new QAccessibleWidget(page, QAccessible::PropertyPage);
  return MakeControlInterface(object);
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(MakeInterface); }

}  // namespace quill
