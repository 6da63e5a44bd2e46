#include "ink/ui/InkX.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

#include <algorithm>

#include "ink/InkSelect.h"
#include "ink/ui/InkAccessibility.h"
#include "ink/ui/InkClipboard.h"
#include "ink/ui/InkXParts.h"
#include "platform/ui/InputCommit.h"

namespace quill {

namespace {

constexpr int kLeastZoom = 25;
constexpr int kMostZoom = 800;
constexpr QPoint kPasteStep{8, 8};  // page pixels, for each repeat

}  // namespace

InkX::InkX(QWidget* parent, InkAccess access)
    : QWidget(parent), m_parts(std::make_unique<Parts>(access)) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_AcceptTouchEvents);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_InputMethodEnabled, access == InkAccess::Write);
  setTabletTracking(true);
  AddBars();
  ConnectDocument();
  ConnectHand();
  FollowTask();
  connect(this, &InkX::changed, this, [this] { TellInkText(*this, m_parts->ToldText); });
}

InkX::~InkX() = default;

void InkX::AddBars() {
  m_parts->Vertical = new QScrollBar(Qt::Vertical, this);
  m_parts->Horizontal = new QScrollBar(Qt::Horizontal, this);
  m_parts->Map = new InkMapStrip(this, m_parts->Document, m_parts->Canvas);
  m_parts->Horizontal->hide();
  m_parts->Map->hide();
  m_parts->Map->TravelAsked = [this](QPointF page) { CentreOn(page); };
  for (QScrollBar* bar : {m_parts->Vertical, m_parts->Horizontal}) {
    bar->setFocusPolicy(Qt::NoFocus);
    bar->setAccessibleName(QStringLiteral("Scroll bar"));
    bar->setAttribute(Qt::WA_NoMousePropagation);  // or a pen on it would write below it
    connect(bar, &QScrollBar::valueChanged, this, [this] {
      ScrollTo({m_parts->Horizontal->value(), m_parts->Vertical->value()});
    });
  }
}

void InkX::ConnectDocument() {
  InkDocument* const document = &m_parts->Document;
  connect(document, &InkDocument::StrokeAdded, this, [this](const InkStrokePtr& stroke) {
    ShowDevice(m_parts->Canvas.TakeStroke(*stroke));
    m_parts->Map->Repaint(PaintedBounds(m_parts->Document.Note(), *stroke));
  });
  connect(document, &InkDocument::Changed, this, [this](const QRect& area) {
    ShowDevice(m_parts->Canvas.Repaint(area));
    m_parts->Map->Repaint(area);
  });
  connect(document, &InkDocument::TextChanged, this,
          [this](int caret) { m_parts->Selection.SetCaret(caret); });
  connect(document, &InkDocument::Edited, this, [this] {
    m_parts->Selection.FollowPage();
    FollowPage();
    Q_EMIT changed();
  });
}

void InkX::ConnectHand() {
  InkHand& hand = m_parts->Hand;
  hand.Shown = [this](const QRect& device) { ShowDevice(device); };
  hand.AllShown = [this] { update(); };
  hand.ScrollAsked = [this](QPoint device) { ScrollTo(device); };
  m_parts->Reader.PenCame = [&hand] { hand.CancelFinger(); };
  hand.Wrote = [this](QPointF at) {
    if (m_parts->View == kInkMapView) AdvanceFrom(at);
  };
}

bool InkX::readOnly() const { return m_parts->Access == InkAccess::ReadOnly; }

int InkX::PageStyle() const { return m_parts->Style; }

void InkX::SetPageStyle(int style) {
  m_parts->Style = style;
  FollowPaper();
}

int InkX::Zoom() const { return m_parts->Canvas.View().Zoom(); }

// What was written last stays where it is while it is in view, otherwise the middle; on an empty
// page the place where writing begins.
void InkX::SetZoom(int percent) {
  const InkView& view = m_parts->Canvas.View();
  const QRectF window(Page());
  QPointF anchor = m_parts->Document.Note().IsEmpty() ? QPointF() : window.center();
  if (const auto place = m_parts->Hand.LastPlace())
    if (const QPointF at = view.WindowFromPage(*place); window.contains(at)) anchor = at;
  m_parts->Canvas.SetZoom(std::clamp(percent, kLeastZoom, kMostZoom), anchor);
  FollowPage();
  update();
  Q_EMIT zoomChanged(Zoom());
}

int InkX::Wrap() const { return m_parts->Wrap; }

void InkX::SetWrap(int flag) {
  m_parts->Wrap = flag;
  FollowPaper();
}

int InkX::View() const { return m_parts->View; }

void InkX::SetView(int word) {
  m_parts->View = word;
  PlaceBars();
}

int InkX::Toggle() const { return m_parts->Toggle; }

void InkX::SetToggle(int word) {
  if (readOnly()) return;
  m_parts->Toggle = word;
  FollowTask();
}

void InkX::FollowTask() {
  const bool selects = m_parts->Toggle == kInkPenSelects;
  m_parts->Hand.SetTask(readOnly() ? InkTask::Scroll : selects ? InkTask::Select : InkTask::Write);
  setCursor(readOnly() ? Qt::OpenHandCursor : selects ? Qt::IBeamCursor : Qt::CrossCursor);
  m_parts->ShowsCaret = selects;
  update();
}

void InkX::FollowPaper() {
  const InkPaper paper{.Style = m_parts->Style, .IsEndless = m_parts->Wrap == 0};
  m_parts->Canvas.SetPaper(paper);
  m_parts->Map->SetPaper(paper);
  FollowPage();
  update();
}

void InkX::EndGesture() { m_parts->Hand.Finish(); }

void InkX::EndInput() {
  EndGesture();
  if (hasFocus()) CommitInput();
}

qsizetype InkX::DataLength() const { return Data().size(); }
QByteArray InkX::Data() const { return m_parts->Document.Data(); }

void InkX::SetData(const QByteArray& bytes) {
  m_parts->Hand.Cancel();
  m_parts->Hand.ForgetPlace();
  m_parts->Selection.SelectNothing();
  m_parts->Document.SetData(bytes);
  m_parts->ShowsCaret = m_parts->Toggle == kInkPenSelects;
  m_parts->Canvas.RepaintWhole();
  FollowPage();
  ScrollTo({0, 0});
  update();
  Q_EMIT changed();
}

bool InkX::CanUndo() const { return !readOnly() && m_parts->Document.Steps().canUndo(); }
bool InkX::CanRedo() const { return !readOnly() && m_parts->Document.Steps().canRedo(); }

void InkX::Undo() {
  EndGesture();
  if (CanUndo()) m_parts->Document.Steps().undo();
  update();  // marks and notice too
}

void InkX::Redo() {
  EndGesture();
  if (CanRedo()) m_parts->Document.Steps().redo();
  update();
}

bool InkX::HasSelection() const { return !m_parts->Selection.IsEmpty(); }

bool InkX::CanPaste() const {
  const QMimeData* const held = QGuiApplication::clipboard()->mimeData();
  return !readOnly() && !m_parts->Document.IsLocked() && held && HoldsInk(*held);
}

void InkX::SelectAll() {
  m_parts->Selection.SelectAll();
  update();
}

void InkX::Cut() {
  if (readOnly() || m_parts->Document.IsLocked()) return;
  Copy();
  Clear();
}

void InkX::Copy() {
  const InkNote fragment = m_parts->Selection.Fragment();
  if (!fragment.IsEmpty())
    QGuiApplication::clipboard()->setMimeData(InkMimeData(fragment).release());
}

void InkX::Paste() {
  if (!CanPaste()) return;
  const auto fragment = InkFrom(*QGuiApplication::clipboard()->mimeData());
  if (!fragment) return;
  InkSelection& selection = m_parts->Selection;
  const QPoint by = fragment->Strokes.empty() ? QPoint() : PasteOffset(*fragment);
  auto pasted = m_parts->Document.Paste(*fragment, by, selection.TextFrom(), selection.TextTo());
  if (!pasted.empty()) selection.SelectStrokes(std::move(pasted));
  update();
}

// Where pasted ink lands: the last tap that is in view, or the middle of the window, and further
// with each repeat. Never off the page.
QPointF InkX::PastePlace(const QSizeF& ink) {
  const InkView& view = m_parts->Canvas.View();
  QPointF place = view.PageFromWindow(QRectF(Page()).center());
  if (const auto last = m_parts->Hand.LastPlace())
    if (QRectF(Page()).contains(view.WindowFromPage(*last))) place = *last;
  m_parts->Pastes = m_parts->PastePlace == place ? m_parts->Pastes + 1 : 0;
  m_parts->PastePlace = place;
  place += kPasteStep * m_parts->Pastes;
  const qreal width =
      static_cast<qreal>(UsedPageWidth(m_parts->Document.Note().Page)) / kInkUnitsPerPixel;
  if (m_parts->Wrap != 0) place.setX(std::min(place.x(), width - ink.width()));
  return {std::max(place.x(), 0.0), std::max(place.y(), 0.0)};
}

QPoint InkX::PasteOffset(const InkNote& fragment) {
  const QRect ink = BoundsOf(fragment.Strokes);
  const QPointF place = PastePlace(QSizeF(ink.size()) / kInkUnitsPerPixel);
  return (place * kInkUnitsPerPixel).toPoint() - ink.topLeft();
}

void InkX::Clear() {
  if (readOnly()) return;
  if (m_parts->Selection.IsAll())
    m_parts->Document.ClearAll();
  else
    m_parts->Typing.DeleteSelection();
  update();
}

const InkView& InkX::PageView() const { return m_parts->Canvas.View(); }

InkDocument& InkX::Document() { return m_parts->Document; }
const InkDocument& InkX::Document() const { return m_parts->Document; }

}  // namespace quill
