// Takes contacts out of the store as the cards of one file.
//
// Streams: one contact is in memory at a time. All of them are read as of one moment, whatever
// other programs write meanwhile.
#pragma once

#include <QIODevice>
#include <QString>

#include <functional>

#include "exchange/CardVersion.h"
#include "store/StoreProvider.h"

namespace quill {

struct ExportOptions {
  CardVersion Version = CardVersion::V30;
  QString Category = {};     // a name, or "No Categories"; empty: whatever they are in
  QString Contact = {};      // as for FindByName; empty: all
  QString Restriction = {};  // as for ContactsFolder::Restrict; empty: all
  // Asked now and then with what is done and what there is in all; false stops the export.
  std::function<bool(int done, int count)> Continue = {};
};

enum class ExportEnd {
  All,
  Stopped,       // Continue said so
  DeviceFailed,  // the device took no more
  StoreFailed,
};

struct ExportSummary {
  int Written = 0;
  ExportEnd End = ExportEnd::All;
  QString StoreError = {};  // why, after StoreFailed
};

// The device is open for writing; the provider's contacts folder is open. What was written before
// an early end stays in the device: the caller throws it away.
ExportSummary ExportCards(StoreProvider& provider, QIODevice& device, const ExportOptions& options);

}  // namespace quill
