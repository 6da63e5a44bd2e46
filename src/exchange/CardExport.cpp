#include "exchange/CardExport.h"

#include <optional>

#include "exchange/CardWriter.h"
#include "store/CategoryText.h"
#include "store/NameSearch.h"
#include "store/Restriction.h"

namespace quill {

namespace {

constexpr int kContactsPerQuestion = 50;  // between two calls of Continue

// Nothing when the store fails.
std::optional<ContactCollection> Chosen(ContactsFolder& contacts, const ExportOptions& options) {
  std::optional<ContactCollection> chosen = contacts.Items();
  if (!options.Restriction.isEmpty()) chosen = contacts.Restrict(*chosen, options.Restriction);
  if (chosen && !options.Category.isEmpty()) {
    const QString name = options.Category == kNoCategories ? QString() : options.Category;
    chosen = contacts.Restrict(*chosen, u"[Categories] = "_qs + QuoteRestrictionValue(name));
  }
  if (chosen && !options.Contact.isEmpty()) chosen = FindByName(contacts, *chosen, options.Contact);
  return chosen;
}

class CardExport {
 public:
  CardExport(StoreProvider& provider, QIODevice& device, const ExportOptions& options)
      : m_contacts(*provider.Contacts()), m_device(device), m_options(options) {}

  ExportSummary Run() {
    const auto chosen = Chosen(m_contacts, m_options);
    if (!chosen) m_summary.End = ExportEnd::StoreFailed;
    const int count = chosen ? m_contacts.Count(*chosen) : 0;
    for (int position = 1; position <= count && m_summary.End == ExportEnd::All; ++position) {
      Write(m_contacts.OidAt(*chosen, position));
      Ask(position, count);
    }
    return m_summary;
  }

 private:
  void Write(Oid oid) {
    ContactItem item;
    if (!m_contacts.Read(oid, item)) {
      m_summary.End = ExportEnd::StoreFailed;
      return;
    }
    const QByteArray card = WriteCard(item, m_options.Version);
    if (m_device.write(card) == card.size()) {
      ++m_summary.Written;
    } else {
      m_summary.End = ExportEnd::DeviceFailed;
    }
  }

  void Ask(int done, int count) {
    if (!m_options.Continue || done % kContactsPerQuestion != 0) return;
    if (m_summary.End == ExportEnd::All && !m_options.Continue(done, count)) {
      m_summary.End = ExportEnd::Stopped;
    }
  }

  ContactsFolder& m_contacts;
  QIODevice& m_device;
  const ExportOptions& m_options;
  ExportSummary m_summary;
};

}  // namespace

ExportSummary ExportCards(StoreProvider& provider, QIODevice& device,
                          const ExportOptions& options) {
  const auto oneMoment = provider.BeginReading();
  ExportSummary summary;
  if (oneMoment) {
    summary = CardExport(provider, device, options).Run();
  } else {
    summary.End = ExportEnd::StoreFailed;
  }
  if (summary.End == ExportEnd::StoreFailed) summary.StoreError = provider.LastError();
  return summary;
}

}  // namespace quill
