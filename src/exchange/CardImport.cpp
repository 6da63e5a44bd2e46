#include "exchange/CardImport.h"

#include <utility>

#include "exchange/CardMapper.h"
#include "exchange/CardMatch.h"

namespace quill {

namespace {

constexpr int kCardsPerTransaction = 1000;
constexpr int kCardsPerQuestion = 50;  // between two calls of Continue

class CardImport {
 public:
  CardImport(QIODevice& device, StoreProvider& provider, const ImportOptions& options)
      : m_reader(device, {options.FallbackCharset}), m_provider(provider), m_options(options) {}

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
    const qint64 newBefore = m_summary.New;
    const qint64 sameBefore = m_summary.Same;
    for (int i = 0; i < kCardsPerTransaction && m_summary.End == ImportEnd::WholeFile; ++i) {
      Card card;
      m_hasMore = m_reader.Next(card);
      if (!m_hasMore) break;
      Take(card);
      AskWhetherToContinue();
    }
    if (transaction->Commit()) return;
    m_summary.New = newBefore;
    m_summary.Same = sameBefore;
    FailStore();
  }

  void FailStore() {
    m_summary.End = ImportEnd::StoreFailed;
    m_summary.StoreError = m_provider.LastError();
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
    const std::optional<ContactItem> item = ContactFromCard(card);
    if (!item) return Report(card, CardFault::NothingToFile);
    m_summary.LinesNotUnderstood += card.LinesNotUnderstood;
    ContactsFolder& contacts = *m_provider.Contacts();
    if (FindSameContact(contacts, *item) != 0) {
      ++m_summary.Same;
    } else if (contacts.SaveWhole(0, *item) != 0) {
      ++m_summary.New;
    } else {
      Report(card, CardFault::NotStored);
    }
  }

  void Report(const Card& card, CardFault fault) {
    ++m_summary.Unreadable;
    if (m_summary.UnreadableCards.size() >= ImportSummary::kMaxListed) return;
    const qint64 line = card.FaultLine != 0 ? card.FaultLine : card.Line;
    m_summary.UnreadableCards.push_back({card.Ordinal, line, fault});
  }

  CardReader m_reader;
  StoreProvider& m_provider;
  const ImportOptions& m_options;
  ImportSummary m_summary;
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
