#include "platform/ui/KeyPanel.h"

#include <QApplication>

#include <utility>

#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kRepeatTimer = 1;
constexpr int kFirstRepeat = 400;  // milliseconds that a key is held before it repeats
constexpr int kNextRepeat = 80;
constexpr Rgb kPanelBackground = 0xA9BECA;

}  // namespace

CKeyPanel::CKeyPanel(QWidget& screen, PreeditWatch& preedit)
    : CPaintedWindow(&screen, QAccessible::Grouping), m_typer(preedit, *screen.window()) {
  setGeometry(kKeyPanelArea);
  setAccessibleName(QStringLiteral("Keys"));
  SetBackground(kPanelBackground);
  hide();
  ShowState({g_keyPanel.Letters});
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { BeginWith(now); });
}

CKeyPanel::~CKeyPanel() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

// A popup has the focus for a moment only: the editor that gets it back keeps its keys.
void CKeyPanel::BeginWith(QWidget* editor) {
  if (!editor || !TakesInputMethod(*editor)) return;
  const Qt::InputMethodHints hints(editor->inputMethodQuery(Qt::ImHints).toInt());
  if (editor == m_editor && hints == m_hints) return;
  m_editor = editor;
  m_hints = hints;
  ShowState({FirstSet(hints, g_keyPanel.Letters)});
}

void CKeyPanel::ShowState(const KeyPanelState& state) {
  m_state = state;
  LetGo();
}

void CKeyPanel::ShowPressed(int key) {
  m_pressed = key;
  SetRows(LayOutKeyPanel(m_state, key));
}

void CKeyPanel::LetGo() {
  if (g_services.Timers) g_services.Timers->Kill(*this, kRepeatTimer);
  ShowPressed(-1);
}

void CKeyPanel::PenPress(QPoint at) {
  m_repeated = false;
  ShowPressed(RowAt(at));
  const auto intention = IntentionOf(m_state, m_pressed);
  if (intention && Repeats(intention->Does))
    g_services.Timers->Set(*this, kRepeatTimer, kFirstRepeat);
}

void CKeyPanel::PenMove(QPoint at) {
  if (m_pressed >= 0 && RowAt(at) != m_pressed) LetGo();
}

void CKeyPanel::PenRelease(QPoint at) {
  const int key = m_pressed;
  LetGo();
  if (key >= 0 && key == RowAt(at) && !m_repeated) Act(key);
}

void CKeyPanel::OnTimer(int id) {
  g_services.Timers->Set(*this, id, kNextRepeat);
  m_repeated = true;
  Act(m_pressed);
}

void CKeyPanel::ActivateRow(int row) { Act(row); }

void CKeyPanel::hideEvent(QHideEvent* event) {
  LetGo();
  CPaintedWindow::hideEvent(event);
}

// The keys change first: what is typed may open a window and wait for its end.
void CKeyPanel::Act(int key) {
  const auto intention = IntentionOf(m_state, key);
  if (!intention) return;
  const KeyPanelState next = StateAfter(m_state, intention->Does);
  if (next.Set != m_state.Set && next.Set != KeySet::Symbols) g_keyPanel.Letters = next.Set;
  if (next != m_state) ShowState(next);
  m_typer.Carry(*intention);
}

}  // namespace quill
