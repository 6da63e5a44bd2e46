#include "store/Restriction.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace quill {
namespace {

// The tree as a text with every parenthesis, to compare with.
QString Shown(const RestrictionNode& node) {
  const QStringList names{QStringLiteral("FileAs"), QStringLiteral("CompanyName"),
                          QStringLiteral("Categories"), QStringLiteral("Subject")};
  const QStringList signs{QStringLiteral("="), QStringLiteral(">="), QStringLiteral("<")};
  if (node.Kind == RestrictionKind::Comparison) {
    return names[static_cast<int>(node.Property)] + signs[static_cast<int>(node.Operator)] +
           node.Value;
  }
  QStringList children;
  for (const RestrictionNode& child : node.Children) children.append(Shown(child));
  const QString word =
      node.Kind == RestrictionKind::And ? QStringLiteral(" & ") : QStringLiteral(" | ");
  return u'(' + children.join(word) + u')';
}

struct ValidCase {
  const char16_t* Text;
  const char16_t* Tree;
};

class ValidRestriction : public testing::TestWithParam<ValidCase> {};

TEST_P(ValidRestriction, BecomesTheTree) {
  const auto tree = ParseRestriction(GetParam().Text);
  ASSERT_TRUE(tree);
  EXPECT_EQ(Shown(*tree).toStdString(), QString::fromUtf16(GetParam().Tree).toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ValidRestriction,
    testing::Values(ValidCase{uR"([FileAs] = "Kim")", u"FileAs=Kim"},
                    ValidCase{uR"([FileAs] >= "")", u"FileAs>="},
                    ValidCase{uR"([CompanyName] < "Ac")", u"CompanyName<Ac"},
                    ValidCase{uR"([Categories] = "")", u"Categories="},
                    ValidCase{uR"~([Subject] >= "(Kim)" AND [Subject] < "(Kin)")~",
                              u"(Subject>=(Kim) & Subject<(Kin))"},
                    ValidCase{uR"([FileAs] >= "A" AND [FileAs] < "G")", u"(FileAs>=A & FileAs<G)"},
                    ValidCase{uR"([FileAs] >= "Y" OR [FileAs] < "A")", u"(FileAs>=Y | FileAs<A)"},
                    ValidCase{uR"(([FileAs] >= "Y" OR [FileAs] < "A") AND [Categories] = "Work")",
                              u"((FileAs>=Y | FileAs<A) & Categories=Work)"},
                    ValidCase{uR"([FileAs] >= "M" AND [FileAs] < "S" AND [Categories] = "")",
                              u"(FileAs>=M & FileAs<S & Categories=)"},
                    ValidCase{uR"([FileAs] = "a" OR [FileAs] = "b" AND [FileAs] = "c")",
                              u"(FileAs=a | (FileAs=b & FileAs=c))"},
                    ValidCase{uR"([FileAs] = "a" AND [FileAs] = "b" OR [FileAs] = "c")",
                              u"((FileAs=a & FileAs=b) | FileAs=c)"},
                    ValidCase{uR"((([FileAs] = "a")))", u"FileAs=a"},
                    ValidCase{uR"([FileAs]="a"AND[FileAs]="b"OR([FileAs]="c"))",
                              u"((FileAs=a & FileAs=b) | FileAs=c)"},
                    ValidCase{u"  [FileAs]\t=  \"a\"  ", u"FileAs=a"},
                    ValidCase{uR"([FileAs] = "say ""hi""")", u"FileAs=say \"hi\""},
                    ValidCase{uR"([FileAs] = """")", u"FileAs=\""},
                    ValidCase{uR"([FileAs] = "50% of 'x' AND [FileAs] < ?1; DROP TABLE contact")",
                              u"FileAs=50% of 'x' AND [FileAs] < ?1; DROP TABLE contact"},
                    ValidCase{uR"([FileAs] = "김철수 😀")", u"FileAs=김철수 😀"}));

class InvalidRestriction : public testing::TestWithParam<const char16_t*> {};

TEST_P(InvalidRestriction, IsRefused) { EXPECT_FALSE(ParseRestriction(GetParam())); }

INSTANTIATE_TEST_SUITE_P(
    Texts, InvalidRestriction,
    testing::Values(
        u"", u"   ", u"Kim", u"[FileAs]", u"[FileAs] =", u"[FileAs] = Kim", u"[FileAs] = \"Kim",
        u"[FileAs] = \"Kim\"\"", u"[FileAs] = Kim\"", u"FileAs = \"Kim\"", u"[FileAs = \"Kim\"",
        u"[LastName] = \"Kim\"", u"[fileas] = \"Kim\"", u"[ FileAs ] = \"Kim\"", u"[] = \"Kim\"",
        u"[FileAsX] = \"Kim\"", u"[FileAs] > \"Kim\"", u"[FileAs] <= \"Kim\"",
        u"[FileAs] <> \"Kim\"", u"[FileAs] == \"Kim\"", u"[FileAs] > = \"Kim\"",
        u"[FileAs] = \"a\" [FileAs] = \"b\"", u"[FileAs] = \"a\" AND", u"[FileAs] = \"a\" OR",
        u"AND [FileAs] = \"a\"", u"[FileAs] = \"a\" and [FileAs] = \"b\"",
        u"[FileAs] = \"a\" ANDOR [FileAs] = \"b\"", u"[FileAs] = \"a\" AND OR [FileAs] = \"b\"",
        u"([FileAs] = \"a\"", u"[FileAs] = \"a\")", u"()", u"(", u"[FileAs] = \"a\" x",
        u"NOT [FileAs] = \"a\""));

QString Nested(int depth) {
  return QString(depth, u'(') + QStringLiteral("[FileAs] = \"a\"") + QString(depth, u')');
}

TEST(Restriction, NestsAsDeepAsTheLimit) {
  EXPECT_TRUE(ParseRestriction(Nested(kRestrictionDepthLimit)));
  EXPECT_FALSE(ParseRestriction(Nested(kRestrictionDepthLimit + 1)));
  EXPECT_FALSE(ParseRestriction(Nested(1'000'000)));
}

TEST(Restriction, ParenthesesSideBySideAreNotNested) {
  QStringList parts;
  for (int i = 0; i < 2 * kRestrictionDepthLimit; ++i) parts.append(Nested(1));
  EXPECT_TRUE(ParseRestriction(parts.join(QStringLiteral(" OR "))));
}

TEST(Restriction, HasAsManyComparisonsAsTheLimit) {
  QStringList parts;
  for (int i = 0; i < kRestrictionComparisonLimit; ++i) parts.append(Nested(0));
  EXPECT_TRUE(ParseRestriction(parts.join(QStringLiteral(" AND "))));
  parts.append(Nested(0));
  EXPECT_FALSE(ParseRestriction(parts.join(QStringLiteral(" AND "))));
}

TEST(Restriction, ANulIsPartOfAValue) {
  const QString value = QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
  const auto tree = ParseRestriction(QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(value));
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->Value, value);
}

class QuotedValue : public testing::TestWithParam<QString> {};

TEST_P(QuotedValue, IsReadBack) {
  const auto tree =
      ParseRestriction(QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(GetParam()));
  ASSERT_TRUE(tree);
  EXPECT_EQ(*tree, (RestrictionNode{.Kind = RestrictionKind::Comparison, .Value = GetParam()}));
}

INSTANTIATE_TEST_SUITE_P(Texts, QuotedValue,
                         testing::Values(QString(), QStringLiteral("Kim"), QStringLiteral("\""),
                                         QStringLiteral("\"\""), QStringLiteral("O\"Neil\""),
                                         QStringLiteral("\" OR [FileAs] >= \""),
                                         QStringLiteral("a\nb")));

TEST(Restriction, BothIsASequenceOfTheTwo) {
  const RestrictionNode kim{.Kind = RestrictionKind::Comparison, .Value = QStringLiteral("Kim")};
  const RestrictionNode nothing{.Kind = RestrictionKind::Or};
  const RestrictionNode both = MakeBoth(kim, nothing);
  EXPECT_EQ(both.Kind, RestrictionKind::And);
  EXPECT_EQ(both.Children, std::vector<RestrictionNode>({kim, nothing}));
}

}  // namespace
}  // namespace quill
