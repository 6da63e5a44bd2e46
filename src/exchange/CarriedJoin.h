// The lines that a contact carries for what has no field: unfolded properties, each ended by LF.
#pragma once

#include <QString>

namespace quill {

// The stored lines, then those of the others that are not among them. Lines of one group are one
// thing, which is there when one stored group has them all, and so is a card within a card. Lines
// are equal when they mean the same, however they are written and whatever their group is called. A
// group that comes in has a name of its own after that. REV and PRODID, which speak of the card and
// not of its person, stay as they are stored.
QString JoinCarriedLines(const QString& stored, const QString& more);

}  // namespace quill
