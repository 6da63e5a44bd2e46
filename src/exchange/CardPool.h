// The properties of one card while a contact is made from it: each is taken at most once, and what
// nobody takes is carried along.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

#include "exchange/CardReader.h"

namespace quill {

class CardPool {
 public:
  // The card outlives this. Its nested cards are never given out, only carried.
  explicit CardPool(const Card& card);

  // The properties of this name that nobody has taken, in the order of the file or with the
  // preferred ones first. They stay until they are taken.
  std::vector<const CardProperty*> All(QStringView name) const;
  std::vector<const CardProperty*> Preferred(QStringView name) const;
  // The first of All; null when there is none.
  const CardProperty* First(QStringView name) const;
  // The card's own first; null also when somebody has taken it.
  const CardProperty* Leading(QStringView name) const;

  void Take(const CardProperty& property);

  // What the X-ABLABEL of the property's group says, without the marks of built-in labels; empty
  // when there is none. TakeLabel takes that label.
  QString Label(const CardProperty& property) const;
  void TakeLabel(const CardProperty& property);

  // What nobody took, as unfolded lines ended by LF.
  QString Rest() const;

 private:
  const CardProperty* LabelOf(const CardProperty& property) const;

  const std::vector<CardProperty>& m_properties;
  std::vector<bool> m_taken;
};

}  // namespace quill
