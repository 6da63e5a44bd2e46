#include "ink/ui/InkKeeping.h"

#include <QDateTime>

#include <utility>

#include "ink/ui/InkX.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "resources/ControlIds.h"

namespace quill {

namespace {

// So many runs in a row may leave ink that nobody decides about before the last one's is lost.
constexpr int kFiles = 4;

QString FileName(const QString& name, int number) {
  return number == 1 ? name : QStringLiteral("%1-%2").arg(name).arg(number);
}

QString OfferText(const UnsavedInk& ink) {
  if (ink.Time == 0) return QStringLiteral("Unsaved ink");
  const QDateTime time = QDateTime::fromMSecsSinceEpoch(ink.Time);
  const bool isToday = time.date() == g_services.Clock->Now().date();
  const QString when = time.toString(isToday ? QStringLiteral("HH:mm") : QStringLiteral("MM/dd"));
  if (ink.Owner.isEmpty()) return QStringLiteral("Unsaved ink from ") + when;
  return QStringLiteral("Not saved: %1, %2").arg(ink.Owner, when);
}

}  // namespace

InkKeeping::InkKeeping(InkX& ink, const InkKeepingPlace& place, QWidget& window)
    : m_ink(ink),
      m_window(window),
      m_isShared(place.IsShared),
      m_owner(place.Owner),
      m_bar(std::make_unique<COfferBar>(&window, OfferIds{InkIds::kRestore, InkIds::kDiscard})) {
  m_bar->RestoreAsked = [this] { Restore(); };
  m_bar->DiscardAsked = [this] { DropOffer(); };
  FindOffers(place);
  PlaceBar();
}

InkKeeping::~InkKeeping() = default;

void InkKeeping::FindOffers(const InkKeepingPlace& place) {
  QString free = place.File;
  for (int number = 1; number <= kFiles; ++number) {
    const QString file = FileName(place.Name, number);
    if (file == place.File) continue;
    if (auto ink = FindUnsavedInk(file))
      m_offers.push_back({file, std::move(*ink)});
    else if (free.isEmpty())
      free = file;
  }
  KeepIn(free.isEmpty() ? FileName(place.Name, kFiles) : free);
}

void InkKeeping::KeepIn(const QString& file) {
  m_file = file;
  m_recovery = std::make_unique<InkRecovery>(m_ink.Document(), m_file, m_owner);
}

void InkKeeping::PlaceBar() {
  if (m_offers.empty()) return m_bar->Withdraw();
  m_bar->Offer(OfferText(m_offers.front().Ink), m_window.rect());
}

// The note goes on in the file that it came from, so that no crash in between loses it.
void InkKeeping::Restore() {
  const Offer offer = std::move(m_offers.front());
  m_offers.pop_front();
  m_recovery->Discard();
  KeepIn(offer.Name);
  m_ink.Document().Replace(offer.Ink.Note);
  m_ink.setFocus(Qt::ActiveWindowFocusReason);
  PlaceBar();
}

void InkKeeping::DropOffer() {
  RemoveUnsavedInk(m_offers.front().Name);
  m_offers.pop_front();
  m_ink.setFocus(Qt::ActiveWindowFocusReason);
  PlaceBar();
}

void InkKeeping::Discard() { m_recovery->Discard(); }

void InkKeeping::DiscardDeleted() {
  Discard();
  while (!m_isShared && !m_offers.empty()) DropOffer();
}

}  // namespace quill
