// Whatever text comes: reading it ends and stays within the limits, what is read is written and
// read again as it was, and the store finds just the contacts that satisfy it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "FuzzTarget.h"
#include "RestrictionMatch.h"
#include "store/ContactFields.h"
#include "store/Restriction.h"
#include "store/pim/PimStore.h"

namespace quill::test {
namespace {

void Demand(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

struct Person {
  const char16_t* Name;
  const char16_t* Company;
  const char16_t* Categories;
};
constexpr Person kPeople[] = {
    {u"Yoon", u"Zebra", u"Work, Friends"},
    {u"1st Bank", u"1st Bank", u"Work"},
    {u"Zed", u"", u""},
    {u"adams", u"Acme", u"Friends"},
    {u"Fox", u"Ab", u"Family,Club"},
    {u"Kim", u"Kim \"Q\" Ltd", u""},
    {u"Kim Lee", u"50% off", u"friends"},
    {u"김철수", u"서울", u"동창회, Work"},
    {u"\u00e9mile", u"\U0001F600", u"a b"},
};

// A store in memory with some people who show the rules of the comparisons.
class People {
 public:
  People() {
    Demand(m_store.Create() == 0 && m_store.Logon() == 0, "a store in memory is there");
    Demand(m_store.OpenFolder(FolderKind::Contacts) == 0, "it has contacts");
    for (const Person& person : kPeople) {
      ContactRecord record;
      record[ContactField::FileAs] = QString::fromUtf16(person.Name);
      record[ContactField::CompanyName] = QString::fromUtf16(person.Company);
      record[ContactField::Categories] = QString::fromUtf16(person.Categories);
      m_people.push_back({m_store.Contacts()->Save(0, record, {}), record});
    }
  }

  std::vector<Oid> Satisfying(const RestrictionNode& node) const {
    std::vector<Oid> oids;
    for (const auto& [oid, record] : m_people) {
      if (SatisfiesRestriction(record, node)) oids.push_back(oid);
    }
    return oids;
  }

  // Ascending.
  std::vector<Oid> Found(ContactOrder order, const QString& text) {
    ContactsFolder& folder = *m_store.Contacts();
    ContactCollection all = folder.Items();
    folder.Sort(all, order);
    const auto found = folder.Restrict(all, text);
    Demand(found.has_value(), "the store reads what ParseRestriction reads");
    std::vector<Oid> oids;
    const int count = folder.Count(*found);
    for (int i = 1; i <= count; ++i) oids.push_back(folder.OidAt(*found, i));
    std::sort(oids.begin(), oids.end());
    return oids;
  }

 private:
  PimStore m_store{QStringLiteral(":memory:")};
  std::vector<std::pair<Oid, ContactRecord>> m_people;
};

const char16_t* SignOf(RestrictionOperator comparison) {
  switch (comparison) {
    case RestrictionOperator::Equal:
      return u"=";
    case RestrictionOperator::AtLeast:
      return u">=";
    case RestrictionOperator::Below:
      return u"<";
  }
  std::abort();
}

QString NameOf(RestrictionProperty property) {
  switch (property) {
    case RestrictionProperty::FileAs:
      return QStringLiteral("[FileAs]");
    case RestrictionProperty::CompanyName:
      return QStringLiteral("[CompanyName]");
    case RestrictionProperty::Categories:
      return QStringLiteral("[Categories]");
    case RestrictionProperty::Subject:
      return QStringLiteral("[Subject]");
  }
  std::abort();
}

QString TextOf(const RestrictionNode& node) {
  if (node.Kind == RestrictionKind::Comparison) {
    return NameOf(node.Property) + QString::fromUtf16(SignOf(node.Operator)) +
           QuoteRestrictionValue(node.Value);
  }
  const bool isAnd = node.Kind == RestrictionKind::And;
  QStringList parts;
  for (const RestrictionNode& child : node.Children) {
    const bool isBare =
        child.Kind == RestrictionKind::Comparison || (!isAnd && child.Kind == RestrictionKind::And);
    parts.append(isBare ? TextOf(child) : u'(' + TextOf(child) + u')');
  }
  return parts.join(isAnd ? QStringLiteral(" AND ") : QStringLiteral(" OR "));
}

struct Figures {
  int Comparisons = 0;
  int Depth = 0;
  bool HasSubject = false;
};

void Count(const RestrictionNode& node, int depth, Figures& figures) {
  figures.Depth = std::max(figures.Depth, depth);
  if (node.Kind == RestrictionKind::Comparison) {
    ++figures.Comparisons;
    figures.HasSubject = figures.HasSubject || node.Property == RestrictionProperty::Subject;
    return;
  }
  Demand(node.Children.size() > 1, "a sequence has two parts or more");
  for (const RestrictionNode& child : node.Children) Count(child, depth + 1, figures);
}

void LookAt(const QString& text) {
  static People& people = *new People;
  const auto node = ParseRestriction(text);
  if (!node) return;
  Figures figures;
  Count(*node, 0, figures);
  Demand(figures.Comparisons <= kRestrictionComparisonLimit, "comparisons are limited");
  Demand(figures.Depth <= 2 * (kRestrictionDepthLimit + 1), "the depth is limited");
  Demand(ParseRestriction(TextOf(*node)) == node, "what is written is what was read");
  if (figures.HasSubject) return;  // no contact has one
  const std::vector<Oid> right = people.Satisfying(*node);
  Demand(people.Found(ContactOrder::ByFileAs, text) == right, "found by name");
  Demand(people.Found(ContactOrder::ByCompany, text) == right, "found by company");
}

}  // namespace

const char* const kFuzzSuffix = ".restriction";

std::vector<QByteArray> FuzzWords() {
  return {"[FileAs]",
          "[CompanyName]",
          "[Categories]",
          "[Subject]",
          " AND ",
          " OR ",
          "(",
          ")",
          "\"",
          "\"\"",
          "=",
          ">=",
          "<",
          "\"Kim\"",
          "\"Work\"",
          "\"\"",
          ", ",
          "\t",
          "ORDER",
          "\0",
          "((((((((",
          "\xEA\xB9\x80"};
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quill::test;
  LookAt(QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  // The same bytes as units, among them halves of surrogate pairs.
  QString units(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
  std::memcpy(units.data(), data, size / 2 * 2);
  LookAt(units);
  return 0;
}
