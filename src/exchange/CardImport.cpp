#include "exchange/CardImport.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "exchange/CardCategories.h"
#include "exchange/CardMapper.h"
#include "exchange/CardMatch.h"
#include "exchange/CardMerge.h"
#include "exchange/CardName.h"

namespace quill {

namespace {

constexpr int kCardsPerTransaction = 1000;
constexpr int kCardsPerQuestion = 50;  // between two calls of Continue

// Of the open transaction.
struct PendingCounts {
  qint64 New = 0;
  qint64 Changed = 0;
  qint64 Same = 0;
};

class CardImport {
 public:
  CardImport(QIODevice& device, StoreProvider& provider, const ImportOptions& options)
      : m_reader(device, {options.FallbackCharset},
                 options.Rejects ? RawBytes::Kept : RawBytes::Dropped),
        m_provider(provider),
        m_options(options),
        m_match(*provider.Contacts()),
        m_categories(*provider.Categories()) {}

  ImportSummary Run() {
    m_hasMore = true;
    while (m_hasMore && m_summary.End == ImportEnd::WholeFile) RunTransaction();
    m_summary.LinesNotUnderstood += m_reader.StrayLines();
    if (m_reader.Source().HasFailed() && m_summary.End == ImportEnd::WholeFile) {
      m_summary.End = ImportEnd::DeviceFailed;
    }
    return std::move(m_summary);
  }

 private:
  void RunTransaction() {
    const auto transaction = m_provider.Begin();
    if (!transaction) return FailStore();
    ForgetWhatOthersChanged();
    m_pending = {};
    for (int i = 0; i < kCardsPerTransaction && m_summary.End == ImportEnd::WholeFile; ++i) {
      Card card;
      m_hasMore = m_reader.Next(card);
      if (!m_hasMore) break;
      Take(card);
      AskWhetherToContinue();
    }
    if (!m_categories.AddToLibrary() || !transaction->Commit()) return FailStore();
    m_summary.New += m_pending.New;
    m_summary.Changed += m_pending.Changed;
    m_summary.Same += m_pending.Same;
  }

  // While a transaction is open nobody else writes.
  void ForgetWhatOthersChanged() {
    const qint64 changes = m_provider.Changes();
    if (changes != m_changes) m_match.Forget();
    m_changes = changes;
  }

  void FailStore() {
    m_summary.End = ImportEnd::StoreFailed;
    m_summary.Reason = m_provider.LastError();
  }

  void AskWhetherToContinue() {
    ++m_cards;
    if (!m_options.Continue || m_cards % kCardsPerQuestion != 0) return;
    if (!m_options.Continue({m_cards, m_reader.Source().BytesRead()})) {
      m_summary.End = ImportEnd::Stopped;
    }
  }

  void Take(const Card& card) {
    if (card.Fault != CardFault::None) return Report(card, card.Fault);
    m_summary.IsGuessed |= std::any_of(card.Properties.begin(), card.Properties.end(),
                                       std::mem_fn(&CardProperty::IsGuessed));
    const std::optional<ContactItem> item = ContactFromCard(card);
    if (!item) return Report(card, CardFault::NothingToFile);
    m_summary.LinesNotUnderstood += card.LinesNotUnderstood;
    const bool looksUp = m_options.Duplicates != OnDuplicate::Add;
    const auto known = looksUp ? m_match.Find(*item) : std::vector<KnownContact>();
    if (known.empty()) {
      Write(card, 0, *item, m_pending.New);
    } else if (m_options.Duplicates == OnDuplicate::Skip) {
      ++m_pending.Same;
    } else {
      Merge(card, known);
    }
  }

  void Merge(const Card& card, const std::vector<KnownContact>& known) {
    // One that took the card up before has it all, also when it is not the first.
    for (const KnownContact& each : known) {
      if (MergedContact(each.Item, card) != each.Item) continue;
      ++m_pending.Same;
      return;
    }
    const KnownContact& first = known.front();
    Write(card, first.Id, MergedContact(first.Item, card), m_pending.Changed);
  }

  void Write(const Card& card, Oid oid, const ContactItem& item, qint64& counter) {
    const Oid written = m_provider.Contacts()->SaveWhole(oid, item);
    if (written == 0) return Report(card, CardFault::NotStored);
    m_match.Note(written, item.Record);
    m_categories.Note(item.Record);
    ++counter;
  }

  void Report(const Card& card, CardFault fault) {
    ++m_summary.Unreadable;
    if (m_options.Rejects) Reject(card);
    if (m_summary.UnreadableCards.size() >= ImportSummary::kMaxListed) return;
    const qint64 line = card.FaultLine != 0 ? card.FaultLine : card.Line;
    const QString name = card.Name.isEmpty() ? CardName(card.Properties) : card.Name;
    m_summary.UnreadableCards.push_back({card.Ordinal, line, fault, name});
  }

  void Reject(const Card& card) {
    m_options.Rejects->write(card.Raw);
    const bool isEnded = card.Raw.endsWith('\n') || card.Raw.endsWith('\r');
    if (!isEnded) m_options.Rejects->write("\n");
  }

  CardReader m_reader;
  StoreProvider& m_provider;
  const ImportOptions& m_options;
  ImportSummary m_summary;
  ContactMatch m_match;
  CardCategories m_categories;
  PendingCounts m_pending;
  qint64 m_changes = 0;  // of the store, by its own count
  qint64 m_cards = 0;
  bool m_hasMore = false;
};

}  // namespace

ImportSummary ImportCards(QIODevice& device, StoreProvider& provider,
                          const ImportOptions& options) {
  return CardImport(device, provider, options).Run();
}

QString CardFaultText(CardFault fault) {
  switch (fault) {
    case CardFault::None:
      break;
    case CardFault::LineTooLong:
      return u"a line is too long"_qs;
    case CardFault::CardTooLarge:
      return u"the card is too large"_qs;
    case CardFault::TooManyLines:
      return u"the card has too many properties"_qs;
    case CardFault::NestedTooDeep:
      return u"too many cards within cards"_qs;
    case CardFault::NothingToFile:
      return u"it holds no name, company, number or address"_qs;
    case CardFault::NotStored:
      return u"it could not be stored"_qs;
  }
  return {};
}

}  // namespace quill
