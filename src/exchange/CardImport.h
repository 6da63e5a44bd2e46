// Brings the cards of one file into the store.
//
// Each card stands alone: one that cannot be read or stored is reported and never stops the rest.
// What happens to a card whose person is there already (ContactMatch) is a choice. Importing the
// same file again changes nothing, unless every card is to be added. The categories of contacts
// that are new or changed go into the category library.
#pragma once

#include <QIODevice>
#include <QString>

#include <functional>
#include <vector>

#include "exchange/CardReader.h"
#include "store/StoreProvider.h"

namespace quill {

struct ImportProgress {
  qint64 Cards = 0;      // read so far
  qint64 BytesRead = 0;  // of the file
};

enum class OnDuplicate {
  Merge,  // the contact gets what it lacks (MergedContact)
  Add,    // the card becomes a contact of its own
  Skip,   // the contact stays as it is
};

struct ImportOptions {
  OnDuplicate Duplicates = OnDuplicate::Merge;
  // How text is read that is not UTF-8 and does not say what it is.
  QByteArray FallbackCharset = "windows-1252";
  // Asked now and then; false stops the import. What was counted until then stays.
  std::function<bool(const ImportProgress&)> Continue = {};
  // Gets the unreadable cards as they came, each ended by a line end; null: nobody does. A card
  // beyond the reader's limits is cut there, and UTF-16 comes as UTF-8. It is open for writing;
  // what it cannot write, it has to remember itself.
  QIODevice* Rejects = nullptr;
};

struct UnreadableCard {
  qint64 Ordinal = 0;  // 1-based, in the file
  qint64 Line = 0;     // 1-based: where it failed, else its first line
  CardFault Fault = CardFault::None;
  QString Name;  // CardName
};

enum class ImportEnd {
  WholeFile,
  Stopped,       // Continue said so
  DeviceFailed,  // the file could not be read to its end
  StoreFailed,   // no transaction could be begun or committed
};

struct ImportSummary {
  static constexpr std::size_t kMaxListed = 100'000;

  qint64 New = 0;
  qint64 Changed = 0;
  qint64 Same = 0;  // had nothing new, or were skipped
  qint64 Unreadable = 0;
  std::vector<UnreadableCard> UnreadableCards;  // in the order of the file; the first kMaxListed
  bool IsGuessed = false;         // of what was read some was so in the fallback character set
  qint64 LinesNotUnderstood = 0;  // within cards that were read, and outside of cards
  ImportEnd End = ImportEnd::WholeFile;
  QString Reason;  // after StoreFailed: why
};

// The device is open for reading; the provider's contacts folder is open. Durable after every 1,000
// cards; the cards of a transaction that fails are not counted.
ImportSummary ImportCards(QIODevice& device, StoreProvider& provider, const ImportOptions& options);

// The reason in words, for a report: "a line is too long".
QString CardFaultText(CardFault fault);

}  // namespace quill
