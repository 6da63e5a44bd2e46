// What a peer pushed: whether it is a card, and what to call it when the user is asked.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quill {

struct ObexObject {
  QString Label;     // the name that the peer gave it, fit to be shown; never a path
  QString Person;    // whose card it is, the first one's; fit to be shown
  QByteArray Bytes;  // a file of cards, as import takes it
  int Cards = 0;     // in it
};

inline constexpr int kObexMostCards = 1'000;                         // taken in one receive
inline constexpr qint64 kObexLargestObject = 8 * qint64(1'048'576);  // bytes that are taken

// Nothing when it is no card: it is one by its first line, and by its name when it has a card
// further on. Stops counting cards one above the limit.
std::optional<ObexObject> CardObject(const QString& name, const QByteArray& bytes, int mostCards);

// One short line without anything that moves the text around it.
QString ObexLabel(const QString& name);

}  // namespace quill
