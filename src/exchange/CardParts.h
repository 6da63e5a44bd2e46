// Texts that belong together, such as the parts of a name, beside the fields of a record that hold
// them. A record's own text always stays.
#pragma once

#include <QStringList>

#include <span>

#include "store/ContactRecord.h"

namespace quill {

using FieldSpan = std::span<const ContactField>;

// Each takes one text for each field, in the order of the fields.

// Whether no text differs from its field where both have something.
bool Agree(FieldSpan fields, const QStringList& texts, const ContactRecord& record);
// Whether the record has every text already; empty texts are always there.
bool HasAll(FieldSpan fields, const QStringList& texts, const ContactRecord& record);
// Whether a text that is not empty stands in its field.
bool HasOne(FieldSpan fields, const QStringList& texts, const ContactRecord& record);
void FillEmpty(FieldSpan fields, const QStringList& texts, ContactRecord& record);

}  // namespace quill
