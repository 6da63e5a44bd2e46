// What cards hold beyond a contact, on its way out again: lines that came in with a card of any
// version, put into the syntax of another where that demands it.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

#include "exchange/CardLineWriter.h"
#include "exchange/CardProperty.h"

namespace quill {

// The carried lines of a ContactItem as properties, those of a card inside the card marked as
// nested. What is no property, and what would open or close a card in the wrong place, is left out.
std::vector<CardProperty> CarriedProperties(const QString& lines);

// These properties as lines of a file. Text that is valid in the version stays as it came; a card
// inside the card is one text from 3.0 on.
QByteArray WriteCarried(const std::vector<CardProperty>& properties, CardVersion version);

}  // namespace quill
