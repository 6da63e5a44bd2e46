// Whose card it is, for a report.
#pragma once

#include <QString>

#include <vector>

#include "exchange/CardProperty.h"

namespace quill {

// The formatted name, else the name parts, nickname, company, e-mail address or number: on one line
// of at most 60 characters. Empty when there is none.
QString CardName(const std::vector<CardProperty>& properties);

}  // namespace quill
