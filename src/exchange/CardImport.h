// Brings the cards of one file into the store.
//
// Each card stands alone: one that cannot be read or stored is reported and never stops the rest.
// A card whose person is there already counts as the same and changes nothing: a contact with its
// UID, or one with its FileAs that shares a number or an e-mail address with it or equals it.
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

struct ImportOptions {
  // How text is read that is not UTF-8 and does not say what it is.
  QByteArray FallbackCharset = "windows-1252";
  // Asked now and then; false stops the import. What was counted until then stays.
  std::function<bool(const ImportProgress&)> Continue = {};
};

struct UnreadableCard {
  qint64 Ordinal = 0;  // 1-based, in the file
  qint64 Line = 0;     // 1-based: where it failed, else its first line
  CardFault Fault = CardFault::None;
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
  qint64 Same = 0;
  qint64 Unreadable = 0;
  std::vector<UnreadableCard> UnreadableCards;  // in the order of the file; the first kMaxListed
  qint64 LinesNotUnderstood = 0;                // within cards that were read, and outside of cards
  ImportEnd End = ImportEnd::WholeFile;
  QString StoreError;  // why, after StoreFailed
};

// The device is open for reading; the provider's contacts folder is open. Durable after every 1,000
// cards; the cards of a transaction that fails are not counted.
ImportSummary ImportCards(QIODevice& device, StoreProvider& provider, const ImportOptions& options);

// The reason in words, for a report: "a line is too long".
QString CardFaultText(CardFault fault);

}  // namespace quill
