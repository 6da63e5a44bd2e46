// What the value of a telephone, e-mail or web row can be used for outside of this program.
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

#include "editor/RowRules.h"

namespace quill {

struct RowLink {
  QString Text;  // of the menu item
  QUrl Target;   // tel:, mailto:, http: or https:

  bool operator==(const RowLink&) const = default;
};

// Nothing where there is nothing to dial, to write to or to show. Web pages are those of http and
// https alone: a contact that came from elsewhere must not open a file or start a program.
std::optional<RowLink> LinkOf(RowEntry entry, const QString& value);

}  // namespace quill
