#include "editor/RowLinks.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quill {
namespace {

struct LinkCase {
  const char* Name;
  RowEntry Entry;
  const char16_t* Value;
  const char* Text;    // of the menu item; empty: there is no link
  const char* Target;  // fully encoded
};

void PrintTo(const LinkCase& link, std::ostream* out) { *out << link.Name; }

class RowLinks : public testing::TestWithParam<LinkCase> {};

TEST_P(RowLinks, LeadWhereTheValueSays) {
  const auto link = LinkOf(GetParam().Entry, QString::fromUtf16(GetParam().Value));
  EXPECT_EQ(link ? link->Text.toStdString() : "", GetParam().Text);
  EXPECT_EQ(link ? link->Target.toEncoded().toStdString() : "", GetParam().Target);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, RowLinks,
    testing::Values(
        LinkCase{"Plain", RowEntry::Number, u"02-123-4567", "Call", "tel:021234567"},
        LinkCase{"International", RowEntry::Number, u"+82 (10) 1234.5678", "Call",
                 "tel:+821012345678"},
        LinkCase{"PlusInside", RowEntry::Number, u"010+12", "", ""},
        LinkCase{"Extension", RowEntry::Number, u"+44-555-5555;ext=55", "Call", "tel:+445555555"},
        LinkCase{"SpokenExtension", RowEntry::Number, u"02-123 Ext. 4", "Call", "tel:02123"},
        LinkCase{"LettersOnKeys", RowEntry::Number, u"1-800-FLOWERS", "", ""},
        LinkCase{"PagersAddress", RowEntry::Number, u"6101231234@example.org", "", ""},
        LinkCase{"StarAndHash", RowEntry::Number, u"*123#", "Call", "tel:*123%23"},
        LinkCase{"WideDigits", RowEntry::Number, u"０１０-１２３４", "Call", "tel:0101234"},
        LinkCase{"NoDigits", RowEntry::Number, u"ask her", "", ""},
        LinkCase{"PlusAlone", RowEntry::Number, u"+", "", ""},
        LinkCase{"Empty", RowEntry::Number, u"", "", ""}),
    [](const auto& link) { return std::string(link.param.Name); });

INSTANTIATE_TEST_SUITE_P(
    Addresses, RowLinks,
    testing::Values(LinkCase{"Mail", RowEntry::Email, u" kim@example.org ", "Mail",
                             "mailto:kim@example.org"},
                    LinkCase{"MailWithHeaders", RowEntry::Email, u"kim@example.org?bcc=x@y.org",
                             "Mail", "mailto:kim@example.org%3Fbcc=x@y.org"},
                    LinkCase{"NoMail", RowEntry::Email, u"kim", "", ""},
                    LinkCase{"Page", RowEntry::Web, u"http://example.org/a?b=c#d", "Open",
                             "http://example.org/a?b=c#d"},
                    LinkCase{"PageWithoutScheme", RowEntry::Web, u"www.example.org/kim", "Open",
                             "https://www.example.org/kim"},
                    LinkCase{"File", RowEntry::Web, u"file:///etc/passwd", "", ""},
                    LinkCase{"OtherScheme", RowEntry::Web, u"ftp://example.org", "", ""},
                    LinkCase{"Script", RowEntry::Web, u"javascript:alert(1)", "", ""},
                    LinkCase{"NoHost", RowEntry::Web, u"https://", "", ""},
                    LinkCase{"OneWord", RowEntry::Web, u"homepage", "", ""},
                    LinkCase{"OtherRow", RowEntry::Any, u"www.example.org", "", ""}),
    [](const auto& link) { return std::string(link.param.Name); });

}  // namespace
}  // namespace quill
