#include "list/ui/ContactsView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

#include <utility>

#include "editor/ui/ContactSummaryCard.h"
#include "list/CategoryLabelLayout.h"
#include "list/ContactPopup.h"
#include "list/IndexRanges.h"
#include "list/ListAreas.h"
#include "list/MemoPage.h"
#include "list/PageBuilding.h"
#include "list/Search.h"
#include "list/Selection.h"
#include "list/StartUp.h"
#include "list/TapBands.h"
#include "list/ViewModes.h"
#include "list/ui/CategoryCommands.h"
#include "list/ui/CategoryLabel.h"
#include "list/ui/ContactCommands.h"
#include "list/ui/ContactListCtrl.h"
#include "list/ui/IndexStrip.h"
#include "list/ui/LinkedItemCommands.h"
#include "list/ui/ListKeyCommands.h"
#include "list/ui/MemoCommands.h"
#include "list/ui/RecordOpening.h"
#include "list/ui/RequestOpening.h"
#include "list/ui/SettingsCommands.h"
#include "list/ui/ViewModeCommands.h"
#include "platform/Services.h"
#include "platform/ui/Edit.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kNoticeTimer = 3;
constexpr int kNoticeDelay = 500;  // milliseconds after the last notice

constexpr QRect kSearchEditArea{2, 3, 95, 19};
constexpr QRect kSearchButtonArea{100, 2, 48, 21};

}  // namespace

CContactsView::CContactsView(QWidget* frame)
    : QWidget(frame),
      m_searchEdit(new CEdit({}, this)),
      m_category(new CCategoryLabel(this)),
      m_indexStrip(new CIndexStrip(this)),
      m_list(new CContactListCtrl(this)),
      m_scrollBar(new QScrollBar(Qt::Vertical, this)),
      m_contactCommands(MakeContactCommands(*this)),
      m_linkedItemCommands(MakeLinkedItemCommands(*this)),
      m_memoCommands(MakeMemoCommands(*this)),
      m_modeCommands(MakeViewModeCommands(*this)),
      m_categoryCommands(MakeCategoryCommands(*this)),
      m_settingsCommands(MakeSettingsCommands(*this)),
      m_keyCommands(MakeListKeyCommands(*this)),
      m_requests(std::make_unique<RequestOpening>(*this)) {
  MakeControls();
  PlaceControls();
  ShowPage();
}

CContactsView::~CContactsView() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void CContactsView::MakeControls() {
  auto* const button = new QPushButton(QStringLiteral("Search"), this);
  button->setGeometry(kSearchButtonArea);
  button->setFocusPolicy(Qt::NoFocus);
  button->stackUnder(m_category);  // read out after the search box
  connect(button, &QPushButton::clicked, this, &CContactsView::Search);
  m_searchEdit->setAccessibleName(QStringLiteral("Search for"));
  connect(m_searchEdit, &QLineEdit::returnPressed, this, &CContactsView::Search);
  connect(m_searchEdit, &QLineEdit::textChanged, this,
          [](const QString& text) { g_list.SearchEntry = text; });
  m_scrollBar->setFocusPolicy(Qt::NoFocus);
  m_scrollBar->setAccessibleName(QStringLiteral("Scroll bar"));
  connect(m_scrollBar, &QScrollBar::actionTriggered, this, &CContactsView::RunScrollAction);
  m_indexStrip->Tapped = [this](int index) { ChooseIndex(index); };
  m_category->Tapped = [this] { ShowCategoryMenu(*this); };
  ListenToList();
  m_controls = {{ContactsViewIds::kSearchEdit, m_searchEdit},
                {ContactsViewIds::kSearchButton, button},
                {ContactsViewIds::kListControl, m_list},
                {ContactsViewIds::kScrollBar, m_scrollBar}};
}

void CContactsView::ListenToList() {
  m_list->ScrollAsked = [this](ScrollRequest request) { Scroll(request, 0); };
  m_list->MoveAsked = [this](KeyMove move) { MoveRow(move); };
  m_list->OpenAsked = [this](int row) { OpenRow(row); };
  m_list->CardAsked = [this](int row, QPoint at) { ShowCard(row, at); };
  m_list->PopupAsked = [this](int row, QPoint at) { ShowRowPopup(row, at); };
}

void CContactsView::PlaceControls() {
  const ListAreas areas = LayOutAreas(g_settings);
  m_searchEdit->setGeometry(kSearchEditArea);
  m_category->setGeometry(kCategoryLabelArea);
  m_indexStrip->setGeometry(TapBandArea(TapBand::IndexStrip, g_settings));
  m_indexStrip->setVisible(ShowsIndexStrip(g_settings));
  m_list->setGeometry(areas.List);
  m_scrollBar->setGeometry(areas.ScrollBar);
}

void CContactsView::OnInitialUpdate(StoreProvider& provider) {
  StartList(provider);  // a failure leaves the list empty
  PlaceControls();      // as the settings say
  ShowState();
}

void CContactsView::ShowState() {
  m_searchEdit->setText(g_list.SearchEntry);
  m_requests->Await();  // a request may have come to the shell before
  g_list.RebuildDue ? Rebuild() : ShowPage();
}

CommandRoute CContactsView::Route() const {
  CommandRoute route;
  route.Add(*m_contactCommands);
  route.Add(*m_linkedItemCommands);
  route.Add(*m_memoCommands);
  route.Add(*m_modeCommands);
  route.Add(*m_categoryCommands);
  route.Add(*m_settingsCommands);
  route.Add(*m_keyCommands);
  return route;
}

void CContactsView::OnStoreNotice(int first, int) {
  if (first == 1) return;
  g_list.RebuildDue = true;
  ShowWaiting(true);
  g_services.Timers->Set(*this, kNoticeTimer, kNoticeDelay);
}

void CContactsView::OnTimer(int id) {
  if (id != kNoticeTimer || IsInUse()) return;
  g_services.Timers->Kill(*this, kNoticeTimer);
  ShowWaiting(false);
  if (g_list.Mode != ViewMode::ByMemo) Rebuild();
}

// What a menu or a pen is about stays where it is until that is over. A dialog has its contact in
// hand, and the list below follows.
bool CContactsView::IsInUse() {
  const CScreen* const screen = ScreenAround(this);
  return screen && (screen->Popup() || screen->IsPenDown());
}

void CContactsView::ShowWaiting(bool waiting) {
  if (!waiting)
    m_waiting.reset();
  else if (!m_waiting)
    m_waiting.emplace();
}

bool CContactsView::OnCopyData(int kind, const QString& text) {
  return m_requests->OnCopyData(kind, text);
}

void CContactsView::OpenMemoFile(const QString& path) { m_requests->OpenMemoFile(path); }

void CContactsView::Rebuild() {
  BuildPage(g_list);
  ShowPage();
}

void CContactsView::RebuildInPlace(int row) {
  BuildPage(g_list);
  SelectInPlace(g_list, row);
  ShowPage();
}

// A page that is filled from two states of the store would show a contact twice.
void CContactsView::BringUpToDate() {
  if (g_list.RebuildDue && g_list.Mode != ViewMode::ByMemo) Rebuild();
}

void CContactsView::ShowFiltered() {
  m_searchEdit->clear();
  Rebuild();
}

void CContactsView::Search() {
  SearchList(g_list, EditorText(*m_searchEdit));
  Rebuild();
}

void CContactsView::ShowMode(ViewMode mode) {
  SwitchViewMode(g_list, mode);
  ShowFiltered();
  if (CScreen* const screen = ScreenAround(this)) screen->UpdateChrome();  // New depends on it
}

void CContactsView::ChooseIndex(int button) {
  const bool tookSearch = g_list.SubFilter == FilterSubKind::SearchText;
  ChooseIndexButton(g_list, button);
  tookSearch ? ShowFiltered() : Rebuild();
}

void CContactsView::Relayout() {
  g_list.RowsPerPage = LayOutAreas(g_settings).RowsPerPage;
  g_list.Top = 0;
  DropSelection(g_list);
  PlaceControls();
  if (g_list.Mode != ViewMode::ByMemo) return Rebuild();
  FitMemoPage(g_list);
  ShowPage();
}

void CContactsView::FocusList() { m_list->setFocus(); }

void CContactsView::FocusSearch() {
  m_searchEdit->setFocus(Qt::ShortcutFocusReason);
  m_searchEdit->selectAll();
}

std::optional<int> CContactsView::SearchCaret() const {
  return m_searchEdit->hasFocus() ? std::optional(m_searchEdit->cursorPosition()) : std::nullopt;
}

void CContactsView::SetSearchCaret(int caret) {
  m_searchEdit->setFocus();
  m_searchEdit->setCursorPosition(caret);
}

void CContactsView::RunScrollAction(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
      return Scroll(ScrollRequest::LineUp, 0);
    case QAbstractSlider::SliderSingleStepAdd:
      return Scroll(ScrollRequest::LineDown, 0);
    case QAbstractSlider::SliderPageStepSub:
      return Scroll(ScrollRequest::PageUp, 0);
    case QAbstractSlider::SliderPageStepAdd:
      return Scroll(ScrollRequest::PageDown, 0);
    case QAbstractSlider::SliderMove:
      return Scroll(ScrollRequest::ThumbTrack, m_scrollBar->sliderPosition());
    default:
      m_scrollBar->setValue(g_list.Top);  // the other requests are ignored
  }
}

void CContactsView::Scroll(ScrollRequest request, int thumb) {
  DismissCard();
  BringUpToDate();
  if (ScrollList(g_list, request, thumb)) m_list->ShowPage();
  m_scrollBar->setValue(g_list.Top);
}

void CContactsView::MoveRow(KeyMove move) {
  BringUpToDate();
  MoveCurrentRow(g_list, move);
  m_list->ShowPage();
  m_scrollBar->setValue(g_list.Top);
}

void CContactsView::OpenRow(int row) {
  if (g_list.Mode == ViewMode::ByMemo) return OpenMemo(*this);
  const Oid contact = g_list.Rows[static_cast<std::size_t>(row)].Oid;
  if (!HasContact(contact)) return Rebuild();  // another program deleted it
  EditContact(*this, contact);
}

void CContactsView::ShowCard(int row, QPoint at) {
  CScreen* const screen = ScreenAround(this);
  if (!m_card) m_card = std::make_unique<CContactSummaryCard>(*screen);
  m_card->ShowFor(g_list.Rows[static_cast<std::size_t>(row)].Oid, at.y(),
                  m_list->mapTo(screen, QPoint()).y());
}

void CContactsView::DismissCard() {
  if (m_card) m_card->Dismiss();
}

void CContactsView::ShowRowPopup(int row, QPoint at) {
  CScreen* const screen = ScreenAround(this);
  if (!screen) return;
  const CommandRoute route = Route();
  const int id = screen->TrackMenu(m_list->mapTo(screen, at), BuildRowPopup(g_list, row, route));
  // What was chosen may have become impossible meanwhile.
  if (id != 0) route.Run(id, CommandCheck::AsMenu);
}

void CContactsView::ShowPage() {
  DismissCard();
  m_category->ShowChosen();
  m_indexStrip->ShowChosen();
  m_list->ShowPage();
  m_scrollBar->setRange(0, LargestTop(g_list));
  m_scrollBar->setPageStep(g_list.RowsPerPage);
  m_scrollBar->setValue(g_list.Top);
}

// From the search box on to what was found.
void CContactsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Down || !m_searchEdit->hasFocus())
    return QWidget::keyPressEvent(event);
  FocusList();
  MoveRow(KeyMove::LineDown);
}

void CContactsView::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), palette().color(QPalette::Window));
}

}  // namespace quill
