#include "exchange/CarriedJoin.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <vector>

#include "exchange/CardProperty.h"
#include "exchange/CardReader.h"

namespace quill {

namespace {

struct CarriedLine {
  QString Text;  // without its group
  QString Name;  // upper-case; empty when the line is no property
  QString Group;
};

// Lines that stay together.
struct CarriedUnit {
  QString Group;  // empty: none
  std::vector<CarriedLine> Lines;
};

CarriedLine ParseLine(const QString& text) {
  const qsizetype end = std::max<qsizetype>(text.indexOf(u':'), 0);
  const qsizetype semicolon = text.left(end).indexOf(u';');
  const QString head = text.left(semicolon < 0 ? end : semicolon);
  const qsizetype dot = head.lastIndexOf(u'.');
  return {text.sliced(dot + 1), head.sliced(dot + 1).toUpper(),
          head.left(std::max<qsizetype>(dot, 0))};
}

// Where a line goes that opens no card within a card.
CarriedUnit& UnitFor(const QString& group, std::vector<CarriedUnit>& units) {
  if (group.isEmpty()) return units.emplace_back();
  const auto isSame = [&group](const CarriedUnit& unit) {
    return unit.Group.compare(group, Qt::CaseInsensitive) == 0;
  };
  const auto found = std::find_if(units.begin(), units.end(), isSame);
  return found != units.end() ? *found : units.emplace_back(CarriedUnit{group, {}});
}

std::vector<CarriedUnit> UnitsOf(const QString& lines) {
  std::vector<CarriedUnit> units;
  std::size_t outer = 0;  // the unit that cards within the card belong to
  int depth = 0;
  for (const QString& text : lines.split(u'\n', Qt::SkipEmptyParts)) {
    CarriedLine line = ParseLine(text);
    const bool isBegin = IsBegin(text.toUtf8());
    if (isBegin && !units.empty()) ++depth;
    const bool isEnd = depth > 0 && IsEnd(text.toUtf8());
    if (depth > 0) {
      // Nothing is taken apart in there.
      units[outer].Lines.push_back({text, line.Name, {}});
    } else {
      CarriedUnit& unit = UnitFor(line.Group, units);
      outer = static_cast<std::size_t>(&unit - units.data());
      unit.Lines.push_back(std::move(line));
    }
    if (isEnd) --depth;
  }
  return units;
}

QString MeaningOf(const CardParameter& parameter) {
  QStringList values = parameter.Values;
  values.sort();
  return parameter.Name + u'=' + values.join(u',');
}

// What the line says, whichever version of cards it was written for.
QString MeaningOf(const CarriedLine& line) {
  const auto property = ParseProperty(line.Text.toUtf8(), {});
  if (!property) return line.Text;
  // Bytes are the same bytes, whatever is said of them: every version says it in its own way.
  if (const QByteArray bytes = BytesOf(*property); !bytes.isEmpty())
    return property->Name + u':' + QString::fromLatin1(bytes.toBase64());
  QStringList parameters = TypesOf(*property);
  for (const CardParameter& parameter : property->Parameters) {
    const bool isForm =
        parameter.Name == u"TYPE" || parameter.Name == u"ENCODING" || parameter.Name == u"CHARSET";
    if (!isForm) parameters.append(MeaningOf(parameter));
  }
  parameters.sort();
  return property->Name + u';' + parameters.join(u';') + u':' + TextOf(*property);
}

// What each line of the unit says; a card within the card is one with its lines.
QStringList MeaningsOf(const CarriedUnit& unit) {
  QStringList meanings;
  for (const CarriedLine& line : unit.Lines) meanings.append(MeaningOf(line));
  const bool hasCard = std::any_of(unit.Lines.begin(), unit.Lines.end(),
                                   [](const CarriedLine& line) { return line.Name == u"BEGIN"; });
  return hasCard ? QStringList(meanings.join(u'\n')) : meanings;
}

class CarriedJoin {
 public:
  explicit CarriedJoin(const QString& stored) : m_lines(stored) {
    for (const CarriedUnit& unit : UnitsOf(stored)) Note(unit, MeaningsOf(unit));
  }

  void Add(const CarriedUnit& unit) {
    const QStringList meanings = MeaningsOf(unit);
    if (IsKnown(meanings) || IsKnownOfCard(unit)) return;
    const QString group = FreeGroup(unit.Group);
    for (const CarriedLine& line : unit.Lines) {
      Append(line.Group.isEmpty() ? QString() : group, line.Text);
    }
    Note({group, unit.Lines}, meanings);
  }

  const QString& Lines() const { return m_lines; }

 private:
  void Note(const CarriedUnit& unit, const QStringList& meanings) {
    for (const QString& meaning : meanings) m_unitsWith[meaning].insert(m_units);
    ++m_units;
    m_names.insert(unit.Lines.front().Name);
    m_groups.insert(unit.Group.toUpper());
  }

  // Whether one unit says all of it. Part of a group may have found a place in the contact.
  bool IsKnown(const QStringList& meanings) const {
    QSet<int> units = m_unitsWith.value(meanings.first());
    for (const QString& meaning : meanings) units.intersect(m_unitsWith.value(meaning));
    return !units.isEmpty();
  }

  bool IsKnownOfCard(const CarriedUnit& unit) const {
    const QString& name = unit.Lines.front().Name;
    return (name == u"REV" || name == u"PRODID") && m_names.contains(name);
  }

  QString FreeGroup(const QString& wanted) const {
    QString group = wanted;
    for (int i = 1; !group.isEmpty() && m_groups.contains(group.toUpper()); ++i) {
      group = u"item%1"_qs.arg(i);
    }
    return group;
  }

  void Append(const QString& group, const QString& text) {
    if (!group.isEmpty()) m_lines += group + u'.';
    m_lines += text + u'\n';
  }

  QString m_lines;
  QHash<QString, QSet<int>> m_unitsWith;  // by what a line says
  int m_units = 0;
  QSet<QString> m_names;
  QSet<QString> m_groups;
};

}  // namespace

QString JoinCarriedLines(const QString& stored, const QString& more) {
  // Most often the same file comes again.
  if (more.isEmpty() || stored == more) return stored;
  CarriedJoin join(stored);
  for (const CarriedUnit& unit : UnitsOf(more)) join.Add(unit);
  return join.Lines();
}

}  // namespace quill
