#include "store/Restriction.h"

#include <array>
#include <utility>

#include "store/AppointmentFields.h"

namespace quill {

namespace {

struct PropertyName {
  RestrictionProperty Property;
  QStringView Name;
};
constexpr std::array<PropertyName, 4> kProperties{{
    {RestrictionProperty::FileAs, FieldRow(ContactField::FileAs).Property},
    {RestrictionProperty::CompanyName, FieldRow(ContactField::CompanyName).Property},
    {RestrictionProperty::Categories, FieldRow(ContactField::Categories).Property},
    {RestrictionProperty::Subject, PropertyOf(&AppointmentItem::Subject)},
}};

struct OperatorSign {
  RestrictionOperator Operator;
  QStringView Sign;
};
constexpr std::array<OperatorSign, 3> kOperators{{
    {RestrictionOperator::Equal, u"="},
    {RestrictionOperator::AtLeast, u">="},
    {RestrictionOperator::Below, u"<"},
}};

// Recursive descent: each operation takes what it knows from the front of the rest of the text.
class Parser {
 public:
  explicit Parser(QStringView text) : m_rest(text) {}

  std::optional<RestrictionNode> Parse() {
    auto tree = TakeRestriction();
    SkipBlanks();
    return m_rest.isEmpty() ? std::move(tree) : std::nullopt;
  }

 private:
  using Result = std::optional<RestrictionNode>;

  void SkipBlanks() {
    while (m_rest.startsWith(u' ') || m_rest.startsWith(u'\t')) m_rest = m_rest.mid(1);
  }

  bool Take(QStringView token) {
    SkipBlanks();
    if (!m_rest.startsWith(token)) return false;
    m_rest = m_rest.mid(token.size());
    return true;
  }

  // A word ends where its letters end: "ORDER" does not begin with the word "OR".
  bool TakeWord(QStringView word) {
    SkipBlanks();
    if (m_rest.size() > word.size() && m_rest.at(word.size()).isLetterOrNumber()) return false;
    return Take(word);
  }

  template <typename TakeOne>
  Result TakeSequence(RestrictionKind kind, QStringView word, TakeOne takeOne) {
    RestrictionNode sequence{.Kind = kind};
    do {
      Result one = takeOne();
      if (!one) return std::nullopt;
      sequence.Children.push_back(std::move(*one));
    } while (TakeWord(word));
    if (sequence.Children.size() > 1) return sequence;
    return std::move(sequence.Children.front());
  }

  Result TakeRestriction() {
    return TakeSequence(RestrictionKind::Or, u"OR", [this] { return TakePart(); });
  }

  Result TakePart() {
    return TakeSequence(RestrictionKind::And, u"AND", [this] { return TakeTerm(); });
  }

  Result TakeTerm() { return Take(u"(") ? TakeParenthesis() : TakeComparison(); }

  Result TakeParenthesis() {
    if (++m_depth > kRestrictionDepthLimit) return std::nullopt;
    Result inner = TakeRestriction();
    if (!inner || !Take(u")")) return std::nullopt;
    --m_depth;
    return inner;
  }

  Result TakeComparison() {
    const auto property = TakeProperty();
    if (!property || ++m_comparisons > kRestrictionComparisonLimit) return std::nullopt;
    const auto sign = TakeOperator();
    if (!sign) return std::nullopt;
    auto value = TakeValue();
    if (!value) return std::nullopt;
    return RestrictionNode{.Kind = RestrictionKind::Comparison,
                           .Property = *property,
                           .Operator = *sign,
                           .Value = std::move(*value)};
  }

  std::optional<RestrictionProperty> TakeProperty() {
    if (!Take(u"[")) return std::nullopt;
    const qsizetype end = m_rest.indexOf(u']');
    const QStringView name = m_rest.left(end < 0 ? 0 : end);
    for (const PropertyName& row : kProperties) {
      if (row.Name != name) continue;
      m_rest = m_rest.mid(end + 1);
      return row.Property;
    }
    return std::nullopt;
  }

  std::optional<RestrictionOperator> TakeOperator() {
    for (const OperatorSign& row : kOperators) {
      if (Take(row.Sign)) return row.Operator;
    }
    return std::nullopt;
  }

  std::optional<QString> TakeValue() {
    if (!Take(u"\"")) return std::nullopt;
    QString value;
    for (;;) {
      const qsizetype quote = m_rest.indexOf(u'"');
      if (quote < 0) return std::nullopt;
      value += m_rest.left(quote);
      m_rest = m_rest.mid(quote + 1);
      if (!m_rest.startsWith(u'"')) return value;
      value += u'"';
      m_rest = m_rest.mid(1);
    }
  }

  QStringView m_rest;
  int m_depth = 0;
  int m_comparisons = 0;
};

}  // namespace

std::optional<RestrictionNode> ParseRestriction(QStringView text) { return Parser(text).Parse(); }

RestrictionNode MakeBoth(RestrictionNode first, RestrictionNode second) {
  RestrictionNode both{.Kind = RestrictionKind::And};
  both.Children.push_back(std::move(first));
  both.Children.push_back(std::move(second));
  return both;
}

QString QuoteRestrictionValue(QStringView text) {
  QString quoted = text.toString();
  quoted.replace(QStringLiteral("\""), QStringLiteral("\"\""));
  return u'"' + quoted + u'"';
}

}  // namespace quill
